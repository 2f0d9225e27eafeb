// Reports as spreadsheets: XLS, XLSX or CSV, by the target's extension; any other one exports
// nothing.
#pragma once

#include "export/export_task.h"

namespace qor {

ExportResult ExportSheets(ExportTask& task);

}  // namespace qor
