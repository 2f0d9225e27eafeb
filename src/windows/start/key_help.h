// The keys of the window at a glance, and the way to the guide.
#pragma once

#include <string>

#include "platform/system/directory.h"

class QWidget;

namespace qor {

// A dialog over the window, until it is closed. The guide is offered where it is installed beside
// the program of this directory, and its place told when it was asked for.
void showKeyHelp(QWidget& window, const std::string& directory = programDirectory());

}  // namespace qor
