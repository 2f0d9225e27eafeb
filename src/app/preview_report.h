// Running with the preview window.
#pragma once

namespace qor {

// Reads settings and report, opens the window, and returns when it is closed. Under
// DeleteAfterPrint the report and its side files are then gone. Throws as the document does; a
// window that can't be opened is told in one line on standard error.
void PreviewReport();

}  // namespace qor
