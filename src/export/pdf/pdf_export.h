// Reports as PDF documents: told through the markup, as the pages are drawn, or as a print job into
// a file.
#pragma once

#include "export/export_task.h"

namespace qor {

// Page by page: of those that are written only their places in the file are kept. The printer that
// makes PDF files takes it where the options say so, and the chosen printer stays as it was.
// Stopped where the resource file beside the program is missing, which has been told.
ExportResult ExportPdf(ExportTask& task);

}  // namespace qor
