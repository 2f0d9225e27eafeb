// Running with no window.
#pragma once

namespace qor {

// Exports the report to AppOptions.ExportTarget and deletes it under DeleteAfterPrint. 0 if no
// report was named, 1 when done, -1 if an error number was raised; other failures are thrown.
int ExportWithoutInterface();

}  // namespace qor
