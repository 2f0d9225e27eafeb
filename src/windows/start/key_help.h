// The keys of the window at a glance, and the way to the guide.
#pragma once

class QWidget;

namespace qor {

// A dialog over the window, until it is closed. The guide is offered where it is installed.
void showKeyHelp(QWidget& window);

}  // namespace qor
