// Exports by the dialog and by the mail button, with programs of the test's own where others are
// started.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTabWidget>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "support/program.h"
#include "support/variable.h"
#include "windows/export/export_form.h"
#include "windows/export/mail_hand_over.h"
#include "windows/export/tfrm_convert.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

std::string contentOf(const std::string& path) {
  std::ostringstream out;
  out << std::ifstream(path, std::ios::binary).rdbuf();
  return out.str();
}

Window::Start withExports(const std::string& report, const Settings& stored = {}) {
  Window::Start start{report, stored};
  start.commands.convert = showExportDialog;
  start.commands.mail = exportAndMail;
  return start;
}

// The dialog, driven by clicks and keys.
class Dialog {
 public:
  // Opens it by F6 and lets the steps be done; it is cancelled where they leave it open.
  static void in(Window& window, const std::function<void(Dialog&)>& steps) {
    bool opened = false;
    QTimer::singleShot(0, &window.form(), [&] {
      auto* form = qobject_cast<TfrmConvert*>(QApplication::activeModalWidget());
      if (form == nullptr) return;
      opened = true;
      Dialog dialog(*form);
      steps(dialog);
      if (form->isVisible()) form->reject();
    });
    window.press("F6");
    ASSERT_TRUE(opened);
  }

  explicit Dialog(TfrmConvert& form) : form_(form) {}

  template <class Control = QWidget>
  Control& control(const char* name) {
    return *form_.findChild<Control*>(name);
  }
  bool isOpen() const { return form_.isVisible(); }
  std::string name() { return control<QLineEdit>("txtFileName").text().toStdString(); }
  std::string note() { return control<QLabel>("lblNote").text().toStdString(); }

  void goTo(int tab) { control<QTabWidget>("Pages_Convert").setCurrentIndex(tab); }
  void click(const char* name) {
    QWidget& widget = control(name);
    ASSERT_TRUE(widget.isVisible() && widget.isEnabled()) << name;
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
  }
  void type(const std::string& name) {
    auto& edit = control<QLineEdit>("txtFileName");
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QTest::keyClicks(&edit, QString::fromStdString(name));
  }

  // Starts the export. Boxes that come are answered by their button of this name, and their texts
  // given.
  std::string run(QMessageBox::StandardButton answer = QMessageBox::Yes) {
    std::string texts;
    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      texts += box->text().toStdString() + "|";
      const bool asks = box->button(QMessageBox::Yes) != nullptr;
      box->button(asks ? answer : QMessageBox::Ok)->click();
    });
    boxes.start(5);
    click("cmdOk");
    return texts;
  }

 private:
  TfrmConvert& form_;
};

const std::string kReport = "Alpha\r\nsecond line\r\n\fBeta\r\n\f";

// What the dialog makes is what a run without a window makes by the same options.
TEST(ExportDialog, writesWhatTheCommandLineWrites) {
  const std::string version = runViewer({"--version"}).output;
  struct Row {
    int tab;
    std::vector<const char*> clicks;
    const char* target;
    std::vector<std::string> files;
  };
  const Row rows[] = {{0, {"chkUseNewPageChar", "chkUseEOFChar"}, "out.txt", {"out.txt"}},
                      {1, {"chkSaveHtmlPictures"}, "out.html", {"out.html"}},
                      {5, {"chbJPEG", "chbPNG"}, "out.png", {"out(1).png", "out(2).png"}},
                      {5, {"chbJPEG", "chbGIF"}, "out.gif", {"out(1).gif", "out(2).gif"}}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.target);
    Window window(withExports(kReport));
    AppOptions.ProgramVersion =
        version.substr(version.find(' ') + 1, version.find('\n') - version.find(' ') - 1);
    const VSetScr before = window.doc().Settings.Scr;
    const std::string target = window.directory().path(row.target);
    Dialog::in(window, [&](Dialog& dialog) {
      dialog.goTo(row.tab);
      for (const char* name : row.clicks) dialog.click(name);
      dialog.type(target);
      EXPECT_EQ(dialog.run(), target + " был создан!|");
      EXPECT_FALSE(dialog.isOpen());
    });
    EXPECT_EQ(window.doc().Settings.Scr.view_width, before.view_width);
    EXPECT_EQ(window.doc().Settings.Prn.LogPixelsX, 600) << "the view's sheet is the printer's";
    const TemporaryDirectory place;
    place.write("report.txt", kReport);
    expectTold(
        runViewer({"-f", "report.txt", "-codepage", "1251", "-export", row.target}, in(place)), "");
    for (const std::string& file : row.files)
      EXPECT_EQ(contentOf(window.directory().path(file)), place.read(file)) << file;
    EXPECT_EQ(window.directory().names().size(), row.files.size() + 1);
    EXPECT_EQ(window.page(), 1);
    EXPECT_GE(window.firstInk(), 0);
  }
}

// The names that are proposed, and what a target can't be: the dialog stays, and nothing is there.
TEST(ExportDialog, staysOpenUntilTheTargetIsOne) {
  Window window(withExports(kReport));
  const TemporaryDirectory& place = window.directory();
  std::filesystem::create_directory(place.path("folder"));
  const std::string stem = place.path("report");
  Dialog::in(window, [&](Dialog& dialog) {
    const std::pair<int, std::string> names[] = {
        {1, stem + ".html"}, {2, stem + ".rtf"}, {3, stem + ".doc"},      {4, stem + ".pdf"},
        {5, stem + ".jpeg"}, {6, stem + ".xls"}, {0, stem + "(conv).txt"}};
    for (const auto& [tab, name] : names) {
      dialog.goTo(tab);
      EXPECT_EQ(dialog.name(), name);
    }
    const std::pair<std::string, std::string> rows[] = {
        {"  ", ""},
        {place.path("folder"), place.path("folder")},
        {place.path("report.txt"), place.path("report.txt")},
        {place.path("none/out.txt"), place.path("none")},
        {place.path(std::string(300, 'x')), ""}};
    for (const auto& [target, told] : rows) {
      dialog.type(target);
      EXPECT_EQ(dialog.run(), "");
      EXPECT_TRUE(dialog.isOpen()) << target;
      EXPECT_NE(dialog.note(), "") << target;
      EXPECT_NE(dialog.note().find(told), std::string::npos) << dialog.note();
    }
    dialog.goTo(6);
    EXPECT_EQ(dialog.note(), "");
    EXPECT_EQ(dialog.run(), "");
    EXPECT_NE(dialog.note(), "") << "there is no exporter";
  });
  EXPECT_EQ(contentOf(place.path("report.txt")), kReport);
  EXPECT_EQ(place.names(), (std::vector<std::string>{"folder/", "report.txt"}));
}

TEST(ExportDialog, replacesOnlyWhatTheUserGivesUp) {
  Window window(withExports(kReport));
  const std::string target = window.directory().write("out.txt", "old");
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    Dialog::in(window, [&](Dialog& dialog) {
      dialog.goTo(0);
      dialog.type(target);
      EXPECT_NE(dialog.run(answer).find(target), std::string::npos);
      EXPECT_EQ(dialog.isOpen(), answer == QMessageBox::No);
      EXPECT_EQ(dialog.name(), target);
    });
    EXPECT_EQ(contentOf(target) == "old", answer == QMessageBox::No);
  }
}

// However the dialog ends, and whatever it was opened for.
TEST(ExportDialog, remembersItsChoices) {
  Window window(withExports(kReport, {{"CheckPNG", 1}, {"ID_of_Convert", 5}}));
  Dialog::in(window, [](Dialog& dialog) {
    EXPECT_EQ(dialog.control<QTabWidget>("Pages_Convert").currentIndex(), 5);
    EXPECT_TRUE(dialog.control<QAbstractButton>("chbPNG").isChecked());
    EXPECT_TRUE(dialog.control<QAbstractButton>("chbJPEG").isChecked());
    EXPECT_FALSE(dialog.control("chkScaleFlag").isEnabled());
    dialog.click("chbPNG");
    dialog.click("chbBMP");
    dialog.goTo(4);
    dialog.click("chkPrinToPdf");
    dialog.goTo(1);
    dialog.click("chkSaveHtmlPictures");
  });
  const Settings stored = window.close();
  for (const auto& [name, value] : {std::pair("ID_of_Convert", 1),
                                    {"CheckPNG", 0},
                                    {"CheckBMP", 1},
                                    {"CheckJPEG", 1},
                                    {"CheckPdf", 1},
                                    {"ImageSaveHTML", 1},
                                    {"ImageSaveDoc", 0}})
    EXPECT_EQ(stored.at(name), value) << name;
}

// A long export can be cancelled: the dialog stays, and so does the old file.
TEST(ExportDialog, canBeCancelled) {
  std::string report;
  for (int page = 0; page < 3000; ++page) report += "Page\r\n\f";
  Window window(withExports(report));
  const std::string target = window.directory().write("out(2900).png", "old");
  QTimer timer;
  int waited = 0;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (progress == nullptr || waited++ > 0) return;
    EXPECT_NE(window.status().find("Please Wait. "), std::string::npos) << window.status();
    QTest::keyClick(progress, Qt::Key_Escape);
  });
  timer.start(10);
  Dialog::in(window, [&](Dialog& dialog) {
    dialog.goTo(5);
    dialog.click("chbJPEG");
    dialog.click("chbPNG");
    dialog.type(window.directory().path("out.png"));
    EXPECT_NE(dialog.run().find("out(2900).png"), std::string::npos);
    EXPECT_TRUE(dialog.isOpen());
  });
  EXPECT_GT(waited, 0);
  EXPECT_EQ(window.status(), "");
  EXPECT_EQ(contentOf(target), "old");
  EXPECT_TRUE(window.directory().has("out(1).png")) << "what was finished stays";
}

// What PDF doesn't show is found while nobody does anything, and the printer way shows it.
TEST(ExportDialog, saysWhatPdfDoesNotShow) {
  Window window(
      withExports("Plain\r\n\f<shape sh_type=4 left=10 top=10 right=50 bottom=50/>\r\n\f"));
  Dialog::in(window, [](Dialog& dialog) {
    dialog.goTo(4);
    auto& losses = dialog.control<QLabel>("lblPdfLosses");
    EXPECT_TRUE(QTest::qWaitFor([&] { return losses.text().contains("ellipses"); }))
        << losses.text().toStdString();
    dialog.click("chkPrinToPdf");
    EXPECT_EQ(losses.text(), "");
  });
}

// A program that writes down what it was started with.
void putRecorder(const TemporaryDirectory& place, const std::string& name) {
  const std::string path =
      place.write(name, "#!/bin/sh\nprintf '%s|' \"$@\" > '" + place.path(name + ".args") + "'\n");
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

bool waitForFile(const std::string& path) {
  return QTest::qWaitFor([&] { return !contentOf(path).empty(); });
}

TEST(ExportDialog, opensAndMailsWhatItHasMade) {
  const TemporaryDirectory programs;
  const Variable path("PATH", programs.path().c_str());
  Window window(withExports(kReport));
  AppOptions.MailProgram = 2;
  const auto exportTo = [&](const std::string& target) {
    Dialog::in(window, [&](Dialog& dialog) {
      dialog.goTo(0);
      dialog.click("chkPreview");
      dialog.click("chkEmail");
      dialog.type(target);
      EXPECT_EQ(dialog.run(), "");
    });
  };
  exportTo(window.directory().path("a.txt"));
  EXPECT_NE(window.status().find("QorUtlMail"), std::string::npos) << window.status();
  putRecorder(programs, "xdg-open");
  putRecorder(programs, "QorUtlMail");
  const std::string target = window.directory().path("b.txt");
  exportTo(target);
  ASSERT_TRUE(waitForFile(programs.path("xdg-open.args")));
  EXPECT_EQ(programs.read("xdg-open.args"), target + "|");
  ASSERT_TRUE(waitForFile(programs.path("QorUtlMail.args")));
  const std::string arguments = programs.read("QorUtlMail.args");
  EXPECT_EQ(arguments.substr(0, 9), "qorsil|2|");
  EXPECT_EQ(arguments.substr(arguments.size() - 3), "| |");
  EXPECT_EQ(contentOf(arguments.substr(9, arguments.size() - 12)), target + "\r\n");
}

TEST(MailButton, exportsAsRememberedAndHandsOver) {
  const TemporaryDirectory programs;
  putRecorder(programs, "QorUtlMail");
  const Variable path("PATH", programs.path().c_str());
  Window window(withExports(kReport + "Gamma\r\n", {{"CheckPNG", 1}, {"ID_of_Convert", 5}}));
  const TemporaryDirectory& place = window.directory();
  std::string list;
  for (int page = 1; page <= 3; ++page)
    list += place.path("report(" + std::to_string(page) + ").png") + "\r\n";
  const std::string old = place.write("old.png", "of the last mail");
  place.write("report_mail.tmp", old + "\r\n");
  window.press("F5");
  ASSERT_TRUE(waitForFile(programs.path("QorUtlMail.args")));
  EXPECT_EQ(programs.read("QorUtlMail.args").substr(0, 9), "qorsil|1|");
  EXPECT_EQ(place.read("report_mail.tmp"), list);
  EXPECT_FALSE(place.has("old.png"));
  EXPECT_TRUE(place.has("report(3).png"));
  EXPECT_EQ(window.status(), "");
}

}  // namespace
}  // namespace qor::test
