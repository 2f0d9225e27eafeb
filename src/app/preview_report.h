// Running with the preview window.
#pragma once

namespace qor {

class StartMessages;

// Reads settings and report, opens the window, and returns when it is closed. Under
// DeleteAfterPrint a report that was seen is then gone with its side files. Throws as the document
// does; a window that can't be opened is told in one line on standard error. What the start has
// told, if anybody keeps it, is shown in a box first.
void PreviewReport(StartMessages* messages);

// The window of a start without a report. Where there is no display or no module of windows it does
// nothing.
void ShowStart();

}  // namespace qor
