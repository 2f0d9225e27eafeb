// The export dialog over a window of a test, driven by clicks and keys, and programs of the test's
// own where others are started.
#pragma once

#include <QAbstractButton>
#include <QTabWidget>

#include "windows/export/tfrm_convert.h"
#include "windows/view/window.h"

namespace qor::test {

// A window whose commands export.
Window::Start withExports(const std::string& report, const Settings& stored = {});

class DrivenDialog {
 public:
  // Opens it by F6 and lets the steps be done; it is cancelled where they leave it open.
  static void in(Window& window, const std::function<void(DrivenDialog&)>& steps);

  explicit DrivenDialog(TfrmConvert& form) : form_(form) {}

  template <class Control = QWidget>
  Control& control(const char* name) {
    return *form_.findChild<Control*>(name);
  }
  bool isOpen() const { return form_.isVisible(); }
  bool isTicked(const char* name) { return control<QAbstractButton>(name).isChecked(); }
  std::string name() { return control<QLineEdit>("txtFileName").text().toStdString(); }
  std::string note() { return control<QLabel>("lblNote").text().toStdString(); }

  void goTo(int tab) { control<QTabWidget>("Pages_Convert").setCurrentIndex(tab); }
  void click(const char* name);
  void type(const std::string& name);

  // Starts the export. Boxes that come are answered by their button of this name, and their texts
  // given.
  std::string run(QMessageBox::StandardButton answer = QMessageBox::Yes);

  // All of it: tab, boxes, target and start. The dialog is closed.
  void exportTo(int tab, const std::vector<const char*>& clicks, const std::string& target);

 private:
  TfrmConvert& form_;
};

// A program that adds what it was started with to the file of its name and ".args".
void putRecorder(const TemporaryDirectory& place, const std::string& name);

bool waitForFile(const std::string& path);

}  // namespace qor::test
