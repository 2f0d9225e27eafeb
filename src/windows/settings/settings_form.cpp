// Calling the dialog.
#include "windows/settings/settings_form.h"

#include "windows/settings/tfrm_sets.h"

namespace qor {

decltype(ViewCommands::settings) settingsForm() {
  return [form = static_cast<TfrmSets*>(nullptr)](QWidget& window, VDoc& doc,
                                                  PreviewKind view) mutable {
    if (form == nullptr) form = new TfrmSets(&window);
    return form->ask(doc, view);
  };
}

}  // namespace qor
