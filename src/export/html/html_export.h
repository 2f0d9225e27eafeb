// Reports as one flowing page of HTML.
#pragma once

#include <string>

#include "export/export_task.h"

namespace qor {

// One line for each line of the report, with colours, bold and, where the options say so, pictures.
ExportResult ExportHtml(ExportTask& task);

// Appends a line; `stem` starts the names of the pictures of barcodes, and without one there are no
// pictures.
void LineToHtml(const VDocStr& line, std::string_view stem, std::string& html);

}  // namespace qor
