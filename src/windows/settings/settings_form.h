// The settings dialog as the preview calls it.
#pragma once

#include "windows/view/view_commands.h"

namespace qor {

// Makes the dialog for the window that calls it first, and shows that one from then on.
decltype(ViewCommands::settings) settingsForm();

}  // namespace qor
