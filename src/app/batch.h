// Running with no window.
#pragma once

namespace qor {

// Prints every page of the report and deletes it under DeleteAfterPrint. 0 if no report was named,
// -1 if it or its settings couldn't be read, which has been told: it then stays; else 1: also where
// there is no such printer, or it didn't take the job.
int PrintWithoutInterface();

// Exports the report to AppOptions.ExportTarget and, where something came of it, deletes it under
// DeleteAfterPrint. 0 if no report was named, 1 when done, -1 if an error number was raised; other
// failures are thrown.
int ExportWithoutInterface();

}  // namespace qor
