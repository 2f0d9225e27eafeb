// The export dialog as the preview calls it.
#pragma once

#include "windows/view/view_commands.h"

namespace qor {

// Shows it until the user has done with it.
void showExportDialog(const ExportCall& call);

}  // namespace qor
