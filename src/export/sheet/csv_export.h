// Reports as lines of fields, in the bytes of the document.
#pragma once

#include "export/export_task.h"

namespace qor {

// A line for each line: its texts between double quotes, each with the separator behind it. A
// double quote in a text stands as it is.
void exportCsv(ExportTask& task);

}  // namespace qor
