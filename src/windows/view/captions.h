// The texts of the window beside those of its commands.
#pragma once

class QWidget;

namespace qor {

struct ViewDesk;

// The title that the command line asks for, or the window's own, in the language of the interface.
void setTitleOf(QWidget& window);

// Names the controls that show no text of their own.
void nameControls(const ViewDesk& desk);

}  // namespace qor
