// The settings dialog over a window, driven by keys and clicks on its controls.
#pragma once

#include <QAbstractButton>
#include <QListView>

#include "support/made_up_printers.h"
#include "windows/settings/settings_form.h"
#include "windows/settings/tfrm_sets.h"
#include "windows/view/window.h"

namespace qor::test {

// The start of a window on this report whose settings are those of the program.
Window::Start withSettings(const std::string& report, const Settings& stored = {});

// The place of all that isn't white.
QRect inkOf(const QImage& image);

// Printers of a test's own in the place of the machine's, for as long as the object lives: "near",
// which is the default one, "silent", which doesn't answer before it is let, "far", and the printer
// that makes PDF files.
struct DialogPrinters : MadeUpPrinters {
  DialogPrinters();
};

class Dialog {
 public:
  // Opens the dialog by F4 and lets the steps be done in it; it is cancelled where they leave it
  // open.
  static void in(Window& window, const std::function<void(Dialog&)>& steps);

  explicit Dialog(TfrmSets& form) : form_(form) {}

  TfrmSets& form() { return form_; }

  template <class Control = QWidget>
  Control& control(const std::string& name) {
    return *form_.findChild<Control*>(QString::fromStdString(name));
  }
  // What labels, edits, buttons, boxes and lists show, with "|" between them; names with blanks.
  std::string text(const std::string& names);
  bool isOn(const char* name) { return control<QAbstractButton>(name).isChecked(); }

  void goTo(int tab);
  // Such as "Ctrl+A" or "Return", to the control that has the focus.
  void key(const std::string& keys);
  // Uses controls one behind the other, each on its tab, such as "cbCollate|txtTop 12": clicks a
  // button, puts a text in the place of an edit's, or chooses a row, which may be yet to come.
  void use(const std::string& steps);
  // Chooses a printer that answers, and waits for its answer.
  void choosePrinter(const std::string& name);
  // Uses controls and answers the dialog that then opens over this one; gives its text.
  std::string answering(const std::string& steps, const std::function<void(QWidget&)>& by);

 private:
  TfrmSets& form_;
};

}  // namespace qor::test
