// Pages as pictures.
#pragma once

#include "export/export_task.h"

namespace qor {

class Canvas;

// One picture of each page in each chosen format, 96 dots per inch. A target without an extension
// gives JPEG as well.
ExportResult ExportImages(ExportTask& task);

// Draws the page at 100 percent; the document's VSetScr must hold its sheet.
void RenderPageToImage(VDocPage& page, Canvas& canvas);

}  // namespace qor
