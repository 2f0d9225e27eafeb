// Reports as PDF documents that show the pages as every other canvas does.
#pragma once

#include "export/export_task.h"

namespace qor {

// Each page on the sheet of the settings, without a printer and its margins. Stopped where the
// report has no pages, which is told.
ExportResult exportDrawnPdf(const ExportTask& task);

}  // namespace qor
