// The wall around a run without a window.
#pragma once

namespace qor {

enum RunMode : int;

// Raises it for a print or an export by the options of the run: it may write beside its target and
// its report, and read what it needs where the environment says that it may read no more. A wall
// that should stand and doesn't is told in one line, and the run goes on.
void raiseRunWall(RunMode mode);

}  // namespace qor
