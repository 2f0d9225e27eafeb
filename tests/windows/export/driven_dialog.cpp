#include "windows/export/driven_dialog.h"

#include <QPushButton>

#include "windows/export/export_form.h"
#include "windows/export/mail_hand_over.h"

namespace qor::test {

Window::Start withExports(const std::string& report, const Settings& stored) {
  Window::Start start{report, stored};
  start.commands.convert = showExportDialog;
  start.commands.mail = exportAndMail;
  return start;
}

void DrivenDialog::in(Window& window, const std::function<void(DrivenDialog&)>& steps) {
  inForm<TfrmConvert>(window, "F6", [&steps](TfrmConvert& form) {
    DrivenDialog dialog(form);
    steps(dialog);
  });
}

void DrivenDialog::click(const char* name) {
  QWidget& widget = control(name);
  ASSERT_TRUE(widget.isVisible() && widget.isEnabled()) << name;
  QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
}

void DrivenDialog::type(const std::string& name) {
  typeInto(control<QLineEdit>("txtFileName"), name);
}

std::string DrivenDialog::run(QMessageBox::StandardButton answer) {
  std::string texts;
  const WhileOpen<QMessageBox> boxes([&](QMessageBox& box) {
    texts += box.text().toStdString() + "|";
    const bool asks = box.button(QMessageBox::Yes) != nullptr;
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    if (asks) {
      EXPECT_EQ(box.button(QMessageBox::Yes)->text() + box.defaultButton()->text(), "ReplaceKeep");
    }
    box.button(asks ? answer : QMessageBox::Ok)->click();
  });
  click("cmdOk");
  return texts;
}

void DrivenDialog::exportTo(int tab, const std::vector<const char*>& clicks,
                            const std::string& target) {
  goTo(tab);
  for (const char* name : clicks) click(name);
  type(target);
  run();
  EXPECT_FALSE(isOpen()) << note();
}

void putRecorder(const TemporaryDirectory& place, const std::string& name) {
  const std::string path =
      place.write(name, "#!/bin/sh\nprintf '%s|' \"$@\" >> '" + place.path(name + ".args") + "'\n");
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

bool waitForFile(const std::string& path) {
  return QTest::qWaitFor([&] { return !readFile(path).empty(); });
}

}  // namespace qor::test
