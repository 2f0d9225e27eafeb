// What the process asks of the system before it starts.
#pragma once

namespace qor {

// Makes a file that grows too large, or a reader that goes away, a failed write and not the end of
// the process.
void prepareProcess();

}  // namespace qor
