// The export dialog: its targets, its choices, and what it says.
#include <QApplication>
#include <QFileDialog>
#include <QProgressDialog>

#include "windows/export/driven_dialog.h"
#include "windows/full_disk.h"

namespace qor::test {
namespace {

const std::string kReport = "Alpha\r\nsecond line\r\n\fBeta\r\n\f";

// The names that are proposed, and what a target can't be: the dialog stays, and nothing is there.
TEST(ExportDialog, staysOpenUntilTheTargetIsOne) {
  Window window(withExports(kReport));
  const TemporaryDirectory& place = window.directory();
  std::filesystem::create_directory(place.path("folder"));
  const std::string stem = place.path("report");
  DrivenDialog::in(window, [&](DrivenDialog& dialog) {
    const char* const names[] = {"(conv).txt", ".html", ".rtf", ".doc", ".pdf", ".jpeg", ".xls"};
    for (const int tab : {1, 2, 3, 4, 5, 6, 0}) {
      dialog.goTo(tab);
      EXPECT_EQ(dialog.name(), stem + names[tab]);
    }
    const int width = dialog.control("Pages_Convert").window()->width();
    const std::pair<std::string, std::string> rows[] = {
        {"  ", ""},
        {place.path("report.txt"), place.path("report.txt")},
        {place.path(std::string(300, 'x')), ""}};
    for (const auto& [target, told] : rows) {
      dialog.type(target);
      EXPECT_EQ(dialog.run(), "");
      EXPECT_TRUE(dialog.isOpen()) << target;
      EXPECT_NE(dialog.note(), "") << target;
      EXPECT_NE(dialog.note().find(told), std::string::npos) << dialog.note();
      EXPECT_EQ(dialog.control("cmdOk").window()->focusWidget(), &dialog.control("txtFileName"));
    }
    QTest::qWait(1);
    EXPECT_EQ(dialog.control("Pages_Convert").window()->width(), width) << "a long name is broken";
    dialog.goTo(6);
    EXPECT_EQ(dialog.note(), "");
    dialog.type(place.path("name.ods"));
    EXPECT_EQ(dialog.run(), "");
    EXPECT_NE(dialog.note(), "") << "there is no exporter";
    dialog.goTo(5);
    dialog.type(place.path("report.txt"));
    dialog.click("chbJPEG");
    dialog.type(place.path("folder/name"));
    EXPECT_EQ(dialog.run(), place.path("folder/name") + " был создан!|");
  });
  EXPECT_EQ(place.read("report.txt"), kReport);
  EXPECT_EQ(place.names(), (std::vector<std::string>{"folder/", "folder/name(1).jpeg",
                                                     "folder/name(2).jpeg", "report.txt"}));
  EXPECT_EQ(window.close().at("CheckJPEG"), 1) << "a name without an extension has ticked it";
}

// Types a name into the save dialog, and gives up what is there if it is asked. Without a name the
// dialog is left, and what it offered given.
std::string choose(DrivenDialog& dialog, const std::string& name) {
  std::string asked;
  bool typed = false;
  const WhileOpen<QMessageBox> giving([&asked](QMessageBox& box) {
    asked += "?";
    box.button(QMessageBox::Yes)->click();
  });
  const WhileOpen<QFileDialog> typing([&](QFileDialog& save) {
    if (std::exchange(typed, true)) return;
    // It lists its directory by and by.
    QTimer::singleShot(50, &save, [&] {
      auto* edit = save.findChild<QLineEdit*>("fileNameEdit");
      if (name.empty()) asked = (edit->text() + " of " + save.nameFilters()[0]).toStdString();
      edit->setText(QString::fromStdString(name));
      QTest::keyClick(edit, name.empty() ? Qt::Key_Escape : Qt::Key_Return);
    });
  });
  dialog.click("cmdFileSafeAs");
  return asked;
}

// A file that the save dialog has asked about is not asked about again, but for one that came
// since.
TEST(ExportDialog, takesNamesFromTheSaveDialog) {
  Window window(withExports(kReport));
  const TemporaryDirectory& place = window.directory();
  place.write("old.txt", "old");
  const std::filesystem::path before = std::filesystem::current_path();
  DrivenDialog::in(window, [&](DrivenDialog& dialog) {
    dialog.goTo(4);
    const std::string proposed = dialog.name();
    EXPECT_EQ(choose(dialog, ""), "report.pdf of *.pdf (*.pdf)");
    EXPECT_EQ(dialog.name(), proposed) << "left with Cancel";
    EXPECT_EQ(choose(dialog, place.path("new")), "");
    EXPECT_EQ(dialog.name(), place.path("new.pfd"));
    dialog.goTo(6);
    choose(dialog, place.path("new"));
    EXPECT_EQ(dialog.name(), place.path("new.xls"));
    dialog.goTo(0);
    EXPECT_EQ(choose(dialog, place.path("new")), "");
    place.write("new.txt", "came since");
    EXPECT_NE(dialog.run(QMessageBox::No), "");
    EXPECT_EQ(choose(dialog, place.path("old.txt")), "?");
    dialog.type(place.path("new.txt"));
    EXPECT_NE(dialog.run(QMessageBox::No), "") << "another one was agreed to";
    dialog.type(place.path("old.txt"));
    EXPECT_EQ(dialog.run(QMessageBox::No), place.path("old.txt") + " был создан!|");
  });
  EXPECT_NE(place.read("old.txt"), "old");
  EXPECT_EQ(place.read("new.txt"), "came since");
  EXPECT_EQ(std::filesystem::current_path(), before);
}

// However the dialog ends, and whatever it was opened for.
TEST(ExportDialog, remembersItsChoices) {
  Window window(withExports(kReport, {{"CheckPNG", 1}, {"ID_of_Convert", 5}}));
  DrivenDialog::in(window, [](DrivenDialog& dialog) {
    EXPECT_EQ(dialog.control<QTabWidget>("Pages_Convert").currentIndex(), 5);
    EXPECT_TRUE(dialog.isTicked("chbPNG") && dialog.isTicked("chbJPEG"));
    EXPECT_FALSE(dialog.control("chkScaleFlag").isEnabled());
    dialog.click("chbPNG");
    dialog.click("chbICO");
    dialog.click("chbBMP");
    dialog.control("cmdOk").setFocus();
    for (const char* keys : {"Ctrl+Tab", "Ctrl+Tab", "Ctrl+Shift+Backtab"})
      QTest::keySequence(dialog.control("cmdOk").window()->windowHandle(), QKeySequence(keys));
    EXPECT_FALSE(dialog.control("GroupBox3").isEnabled() || dialog.control("cbSekme").isEnabled());
    auto& types = dialog.control<QComboBox>("cbXLSFileType");
    types.setFocus();
    dialog.type("x.y.z");
    for (const char* name : {"x.xlsx", "x.csv"}) {
      QTest::keyClick(&types, Qt::Key_Down);
      EXPECT_EQ(dialog.name(), name);
    }
    EXPECT_FALSE(dialog.control("txtSep").isEnabled());
    dialog.click("cbSekme");
    EXPECT_TRUE(dialog.control("txtSep").isEnabled());
    QTest::keyClicks(&dialog.control("txtSep"), "|");
    dialog.click("cbSekme");
    EXPECT_FALSE(dialog.control("txtSep").isEnabled());
    EXPECT_EQ(dialog.control<QLineEdit>("txtSep").text(), "");
    for (const auto& [tab, box] :
         {std::pair(4, "chkPrinToPdf"), {3, "chkSaveDocPictures"}, {6, "chbPageSeparator"}}) {
      dialog.goTo(tab);
      dialog.click(box);
    }
    EXPECT_TRUE(dialog.name().ends_with(".csv")) << dialog.name();
  });
  const Settings expected = {{"ID_of_Convert", 6}, {"CheckPNG", 0},    {"CheckBMP", 1},
                             {"CheckJPEG", 1},     {"CheckICO", 1},    {"CheckPdf", 1},
                             {"ImageSaveHTML", 0}, {"ImageSaveDoc", 1}};
  const Settings stored = window.close();
  for (const auto& [name, value] : expected) EXPECT_EQ(stored.at(name), value) << name;
}

// A long export can be cancelled: the dialog stays, and so does the old file. Of several pictures
// those that were finished stay.
TEST(ExportDialog, canBeCancelled) {
  std::string report;
  for (int line = 1; line <= 600000; ++line) {
    report += "Line " + std::to_string(line) + " of a report that takes its time\r\n";
    if (line % 60 == 0) report += "\f";
  }
  Window window(withExports(report));
  const TemporaryDirectory& place = window.directory();
  auto& status = window.control<QLabel>("stBarMessage");
  for (const auto& [tab, click, name, old] : {std::tuple(5, "chbJPEG", "out.bmp", "out(9900).jpeg"),
                                              {4, "", "out.pdf", "out.pdf"},
                                              {4, "chkPrinToPdf", "out.pdf", "out.pdf"}}) {
    SCOPED_TRACE(click);
    const std::string target = place.write(old, "old");
    int waited = 0;
    const WhileOpen<QProgressDialog> stopping([&](QProgressDialog& progress) {
      if (waited++ > 0) return;
      EXPECT_EQ(progress.windowTitle().toStdString(), place.path(name));
      EXPECT_NE(window.status().find("Please Wait. "), std::string::npos) << window.status();
      EXPECT_EQ(window.status().find(".bmp"), std::string::npos) << "the file that is made";
      EXPECT_EQ(status.palette().color(QPalette::WindowText), QColor(0, 0, 255));
      QTest::keyClick(&progress, Qt::Key_Escape);
    });
    DrivenDialog::in(window, [&](DrivenDialog& dialog) {
      dialog.goTo(tab);
      if (*click != '\0' && !dialog.isTicked(click)) dialog.click(click);
      dialog.type(place.path(name));
      EXPECT_NE(dialog.run().find(old), std::string::npos);
      EXPECT_TRUE(dialog.isOpen());
      EXPECT_EQ(dialog.note(), "");
      EXPECT_EQ(window.status(), "");
    });
    EXPECT_GT(waited, 0);
    EXPECT_EQ(status.palette().color(QPalette::WindowText),
              window.form().palette().color(QPalette::WindowText));
    EXPECT_TRUE(readFile(target) == "old");
  }
  EXPECT_TRUE(place.has("out(1).jpeg"));
  for (const std::string& file : place.names())
    EXPECT_TRUE(file.ends_with(".jpeg") || file == "out.pdf" || file == "report.txt") << file;
}

// A full disk: the dialog says so, whichever way a document takes, and goes on where there is room.
TEST(ExportDialog, saysWhyAnExportFails) {
  Window window(withExports(kReport));
  const std::string target = window.directory().write("out.pdf", "old");
  DrivenDialog::in(window, [&](DrivenDialog& dialog) {
    dialog.goTo(4);
    for (const bool printed : {false, true}) {
      if (printed) dialog.click("chkPrinToPdf");
      dialog.type(target);
      std::string told;
      onAFullDisk(500, [&] { told = dialog.run(); });
      told += dialog.note();
      EXPECT_NE(told.find("out.pdf: File too large"), std::string::npos) << told;
      EXPECT_TRUE(dialog.isOpen());
      EXPECT_EQ(readFile(target), "old");
    }
    dialog.run();
    EXPECT_FALSE(dialog.isOpen());
  });
  EXPECT_NE(readFile(target), "old");
  EXPECT_EQ(window.status(), "");
  const std::string mail = window.directory().write("report_mail.tmp", target + "\r\n");
  onAFullDisk(500, [&] { window.press("F5"); });
  EXPECT_NE(window.status().find("File too large"), std::string::npos) << window.status();
  EXPECT_EQ(readFile(mail), target + "\r\n");
  EXPECT_EQ(window.directory().names().size(), 3U) << "what the last mail has sent is there";
}

// What PDF doesn't show is found while nobody does anything, and the printer way shows it. What
// can't be drawn is told behind the export.
TEST(ExportDialog, saysWhatIsNotShown) {
  const std::string wrong = "<barcode br_type=ITF value=A left=10 top=10 right=50 bottom=20/>";
  Window window(withExports(wrong + "\r\n\f" + wrong + wrong +
                            "<shape sh_type=4 left=10 top=10 right=50 bottom=50/>\r\n\f"));
  const Variable path("PATH", window.directory().path().c_str());
  DrivenDialog::in(window, [&](DrivenDialog& dialog) {
    dialog.goTo(4);
    auto& losses = dialog.control<QLabel>("lblPdfLosses");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !losses.text().isEmpty(); }));
    EXPECT_EQ(losses.text().toStdString(),
              "PDF shows these pages otherwise: ellipses and other shapes. The box \"Microsoft "
              "Print to PDF\" keeps pages as drawn.");
    dialog.click("chkPrinToPdf");
    EXPECT_EQ(losses.text(), "");
    dialog.click("chkPrinToPdf");
    EXPECT_EQ(dialog.run(), window.directory().path("report.pdf был создан!|"));
  });
  const std::string told =
      Window::path() + ": page 1: barcode \"0\": not a value of its type and 2 more";
  EXPECT_EQ(window.status(), told);
  window.press("F5");
  EXPECT_EQ(window.status(), told + "; QorUtlMail can't be started.");
}

TEST(ExportDialog, opensAndMailsWhatItHasMade) {
  const TemporaryDirectory programs;
  const Variable path("PATH", programs.path().c_str());
  Window window(withExports(kReport));
  AppOptions.MailProgram = 2;
  const auto exportTo = [&](const std::string& target) {
    DrivenDialog::in(window, [&](DrivenDialog& dialog) {
      dialog.exportTo(0, {"chkPreview", "chkEmail"}, target);
    });
  };
  const std::string first = window.directory().path("a.txt");
  exportTo(first);
  EXPECT_EQ(window.status(),
            "No program opens this file: " + first + "; QorUtlMail can't be started.");
  putRecorder(programs, "xdg-open");
  putRecorder(programs, "QorUtlMail");
  const std::string target = window.directory().path("b.txt");
  exportTo(target);
  EXPECT_EQ(window.status(), "") << "of the last export";
  ASSERT_TRUE(waitForFile(programs.path("xdg-open.args")));
  EXPECT_EQ(programs.read("xdg-open.args"), target + "|");
  ASSERT_TRUE(waitForFile(programs.path("QorUtlMail.args")));
  const std::string arguments = programs.read("QorUtlMail.args");
  EXPECT_EQ(arguments.substr(0, 9), "qorsil|2|");
  EXPECT_EQ(arguments.substr(arguments.size() - 3), "| |");
  EXPECT_EQ(readFile(arguments.substr(9, arguments.size() - 12)), target + "\r\n");
}

// Separators and pages of the dialog's fields; a sheet that is to be seen is opened once.
TEST(ExportDialog, writesSpreadsheetsAsItsBoxesSay) {
  const TemporaryDirectory programs;
  const Variable path("PATH", programs.path().c_str());
  putRecorder(programs, "xdg-open");
  Window window(withExports("A<b>b\f2"));
  const TemporaryDirectory& place = window.directory();
  const auto exportTo = [&](const std::vector<const char*>& clicks, const char* separator,
                            const char* target) {
    DrivenDialog::in(window, [&](DrivenDialog& dialog) {
      dialog.goTo(6);
      QTest::keyClick(&dialog.control("cbXLSFileType"), Qt::Key_End);
      for (const char* box : clicks) dialog.click(box);
      QTest::keyClicks(&dialog.control("txtSep"), separator);
      dialog.exportTo(6, {}, place.path(target));
    });
  };
  exportTo({}, "", "tabs.csv");
  EXPECT_EQ(place.read("tabs.csv"), "\"A\"\t\"b\"\t\r\n\"2\"\t\r\n");
  exportTo({"cbSekme", "chbPageSeparator"}, " |;", "bars.csv");
  EXPECT_EQ(place.read("bars.csv"), "\"A\"|\"b\"|\r\n\f\r\n\"2\"|\r\n\f\r\n");
  exportTo({"chkPreview"}, "", "a.xls");
  exportTo({"chkPreview"}, "", "a.xlsx");
  EXPECT_TRUE(place.read("a.xls").starts_with("\xD0\xCF") &&
              place.read("a.xlsx").starts_with("PK"));
  const std::string opened = place.path("a.xls|") + place.path("a.xlsx|");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return programs.read("xdg-open.args").size() >= opened.size(); }));
  QTest::qWait(100);
  EXPECT_EQ(programs.read("xdg-open.args"), opened);
}

}  // namespace
}  // namespace qor::test
