// Reports as plain text.
#pragma once

#include <string>

#include "export/export_task.h"

namespace qor {

// One line for each line of the report, ended by CR LF, in the document's bytes.
ExportResult ExportText(ExportTask& task);

// Appends the texts of a line.
void LineToText(const VDocStr& line, std::string& text);

}  // namespace qor
