// What the window leaves to other forms: one entry for each. A command that nobody offers is there
// and disabled.
#pragma once

#include <functional>

#include "window_model/view_state.h"

class QWidget;

namespace qor {

class VDoc;

enum class DialogResult { apply = 1, cancel = 2, print = 6 };

struct SettingsAnswer {
  DialogResult result = DialogResult::cancel;
  bool scaleToPaper = false;  // offered in a wide view, and chosen
};

struct ViewCommands {
  // The settings dialog over a window. It may change the document's settings.
  std::function<SettingsAnswer(QWidget& window, VDoc&, PreviewKind view)> settings;
  // The export dialog. It reads and changes its own choices in the state.
  std::function<void(VDoc&, ViewState&)> convert;
  // The hand-off to a mail program.
  std::function<void(VDoc&)> mail;
  // Shows or hides the alignment line, and its properties.
  std::function<void()> shapeLine;
  std::function<void()> lineProperties;
};

}  // namespace qor
