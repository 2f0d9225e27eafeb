// The settings dialog over a window, driven by keys and clicks on its controls.
#pragma once

#include <QListView>
#include <functional>
#include <string>

#include "windows/settings/settings_form.h"
#include "windows/settings/tfrm_sets.h"
#include "windows/view/window.h"

namespace qor::test {

// The start of a window on this report whose settings are those of the program.
Window::Start withSettings(const std::string& report, const Settings& stored = {});

// The place of all that isn't white.
QRect inkOf(const QImage& image);

class Dialog {
 public:
  // Opens the dialog by F4 and lets the steps be done in it; it is cancelled where they leave it
  // open. What the steps throw comes back.
  static void in(Window& window, const std::function<void(Dialog&)>& steps);

  explicit Dialog(TfrmSets& form) : form_(form) {}

  TfrmSets& form() { return form_; }

  template <class Control = QWidget>
  Control& control(const std::string& name) {
    return *form_.findChild<Control*>(QString::fromStdString(name));
  }
  // A label's or an edit's, a button's or a box' chosen text.
  std::string text(const std::string& name);
  std::string texts(const std::vector<std::string>& names);  // with "|" between them
  bool isOn(const std::string& name);

  void goTo(int tab);
  // Such as "Ctrl+A" or "Return", to the control that has the focus.
  void key(const std::string& keys, int times = 1);
  void click(const std::string& name);
  // Puts a text in the place of an edit's, key by key.
  void type(const std::string& name, const std::string& text);
  // Chooses a row of a box, of a list or of the tree by its text, which may be yet to come.
  void choose(const std::string& name, const std::string& row);
  // Chooses a printer that answers, and waits for its answer.
  void choosePrinter(const std::string& name);
  // Answers the next dialog that opens over this one, while `step` is done; gives its text.
  std::string answering(const std::function<void()>& step, const std::function<void(QWidget&)>& by);

 private:
  TfrmSets& form_;
};

}  // namespace qor::test
