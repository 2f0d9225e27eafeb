// Calling the dialog.
#include "windows/export/export_form.h"

#include "windows/export/tfrm_convert.h"

namespace qor {

void showExportDialog(const ExportCall& call) {
  TfrmConvert(call).exec();
}

}  // namespace qor
