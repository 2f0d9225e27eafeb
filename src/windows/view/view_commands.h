// What the window leaves to other forms: one entry for each. A command that nobody offers is there
// and disabled.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "window_model/export_choices.h"
#include "window_model/view_state.h"

class QWidget;

namespace qor {

class VDoc;

enum class DialogResult { apply = 1, cancel = 2, print = 6 };

struct SettingsAnswer {
  DialogResult result = DialogResult::cancel;
  bool scaleToPaper = false;  // offered in a wide view, and chosen
};

// An export that the window asks for. The page on view is released, and the document nobody
// else's, until the call ends.
struct ExportCall {
  QWidget& window;
  VDoc& doc;
  ViewState& state;  // remembers the choices
  ExportView view;
  // Adds to a message for the status bar, which is shown behind the call; and shows one, in blue,
  // of what is at work, until an empty one ends it.
  std::function<void(const QString& message)> tell;
  std::function<void(const QString& message)> tellWork;
  // The files that the user has asked for are appended here.
  std::vector<std::string>& made;
};

struct ViewCommands {
  // The settings dialog over a window. It may change the document's settings.
  std::function<SettingsAnswer(QWidget& window, VDoc&, PreviewKind view)> settings;
  // The export dialog, and the hand-off to a mail program.
  std::function<void(const ExportCall&)> convert;
  std::function<void(const ExportCall&)> mail;
};

}  // namespace qor
