// The export dialog and the mail button as the preview calls them.
#pragma once

#include "windows/view/view_commands.h"

namespace qor {

void showExportDialog(const ExportCall& call);

}  // namespace qor
