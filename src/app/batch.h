// Running with no window.
#pragma once

#include <functional>

namespace qor {

// Prints every page of the report and deletes it under DeleteAfterPrint. 0 if no report was named,
// -1 if it or its settings couldn't be read, which has been told: it then stays; else 1: also where
// there is no such printer, or it didn't take the job.
int PrintWithoutInterface();

// Exports the report to AppOptions.ExportTarget and, where something came of it, deletes it under
// DeleteAfterPrint. 0 if no report was named, 1 when done, -1 if an error number was raised; other
// failures are thrown. The wall is raised before the report is read; pictures of a long report are
// made by several processes, each behind its own.
int ExportWithoutInterface(const std::function<void()>& raiseWall);

}  // namespace qor
