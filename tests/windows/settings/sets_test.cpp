// Sets and their file in the dialog. Files are read back as lines and through the program's own
// runs elsewhere.
#include <QApplication>
#include <QFileDialog>
#include <QStringListModel>

#include "windows/settings/dialog.h"

namespace qor::test {
namespace {

std::string setOf(const std::string& name, const std::string& copies) {
  return "<Set SetName=\"" + name + "\">\r\n    <Print>\r\n        <NumOfCopies   = \"" + copies +
         "\"/>\r\n        <PrinterName   = \"near\"/>\r\n    <Print/>\r\n<Set/>\r\n";
}

// The names of the sets in a file, with the copies of each, in its order.
std::string setsIn(const std::string& path) {
  std::string sets;
  for (const std::string& line : linesOf(readFile(path))) {
    const auto quote = line.find('"');
    if (line.find("SetName") != line.npos || line.find("NumOfCopies") != line.npos)
      sets += line.substr(quote + 1, line.rfind('"') - quote - 1) + " ";
  }
  return sets;
}

// A window whose set file holds A, B (as S with a cedilla) and one that is broken, and whose set in
// force is A.
class SettingsSets : public testing::Test {
 protected:
  SettingsSets() {
    AppOptions.WorkDir = window_.directory().path();
    AppOptions.IniFileName = file_;
    AppOptions.SetName = "A";
  }

  static std::string lines(Dialog& dialog, const char* list = "lstListOfSetsNames") {
    const auto& model = static_cast<QStringListModel&>(*dialog.control<QListView>(list).model());
    return model.stringList().join('|').toStdString();
  }

  // A file that is chosen in the dialog of files, or its cancelling.
  static std::function<void(QWidget&)> choosing(const std::string& file) {
    return [file](QWidget& over) {
      auto& files = dynamic_cast<QFileDialog&>(over);
      EXPECT_EQ(files.directory(), QDir(QString::fromStdString(AppOptions.WorkDir)));
      EXPECT_EQ(files.testOption(QFileDialog::DontConfirmOverwrite),
                files.acceptMode() == QFileDialog::AcceptSave);
      if (file.empty()) return files.reject();
      auto* name = files.findChild<QLineEdit*>("fileNameEdit");
      name->setText(QString::fromStdString(file));
      QTest::keyClick(name, Qt::Key_Return);
    };
  }

  static void closeBox(QWidget& box) { box.close(); }

  const Variable code_page_{"QOR_ANSI_CODEPAGE", "1254"};
  const DialogPrinters printers_;
  Window window_{withSettings(reportOfPages(1))};
  const std::string file_ = window_.directory().write(
      "my.vset", setOf("A", "3") + setOf("\xDE", "5") +
                     setOf("Broken", "4\"/>\r\n        <PaperSource   = \"many"));
};

TEST_F(SettingsSets, areLoadedByClicksAndKeysWhole) {
  Dialog::in(window_, [this](Dialog& dialog) {
    dialog.goTo(4);
    EXPECT_EQ(dialog.text("lblFileName txtNameOfSet lstListOfSetsNames"), "my.vset|A|A");
    EXPECT_EQ(dialog.control("lblFileName").toolTip().toStdString(), file_);
    EXPECT_TRUE(dialog.control("lblSetInForce").isHidden());
    EXPECT_EQ(lines(dialog), "A|Ş|Broken");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1") << "the set is in force, but not loaded";
    dialog.use("lstListOfSetsNames A");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "3");
    dialog.control("lstListOfSetsNames").setFocus();
    dialog.key("Down");
    EXPECT_EQ(dialog.text("txtNameOfSet txtPrint_Copies"), "Ş|5");
    EXPECT_EQ(AppOptions.SetName, "Ş");
    const std::string told = dialog.answering("lstListOfSetsNames Broken", closeBox);
    EXPECT_NE(told.find("my.vset: set \"Broken\": PaperSource: "), std::string::npos) << told;
    dialog.choosePrinter("far");
    EXPECT_EQ(dialog.text("txtNameOfSet txtPrint_Copies"), "Broken|5") << "a whole set or nothing";
    // A set brings its printer along, whose paper and colour then count.
    dialog.use("lstListOfSetsNames A");
    EXPECT_EQ(dialog.text("lblPrinter txtPageWidth lblReplaced"),
              "near|210|Paper size and colour are those of the printer now. Before: 148 x 210 mm, "
              "Monochrome print");
  });
}

TEST_F(SettingsSets, areSavedUnderTheNameAndTheFileInForce) {
  Dialog::in(window_, [this](Dialog& dialog) {
    dialog.use("txtPrint_Copies 7|txtNameOfSet C");
    EXPECT_FALSE(dialog.control("cmdSets_Delete").isEnabled());
    EXPECT_FALSE(dialog.control("cmdSets_ViewIni").isEnabled());
    EXPECT_EQ(dialog.text("lblSetInForce"), "Set in force, which Del removes: A");
    dialog.use("cmdSets_FileSave");
    EXPECT_EQ(setsIn(file_), "C 7 A 3 \xDE 5 Broken 4 ");
    EXPECT_EQ(lines(dialog), "C|A|Ş|Broken");
    EXPECT_TRUE(dialog.control("cmdSets_ViewIni").isEnabled());
    EXPECT_EQ(dialog.text("lblSetInForce"), "");
    // Cancelled, it goes to the old file all the same; an empty name is "Default".
    dialog.use("txtNameOfSet");
    EXPECT_EQ(dialog.answering("cmdSets_FileSaveAs", choosing("")), "dialog");
    EXPECT_EQ(setsIn(file_), "Default 7 C 7 A 3 \xDE 5 Broken 4 ");
    EXPECT_EQ(AppOptions.SetName, "Default");
    const std::string other = window_.directory().path("other");
    dialog.answering("cmdSets_FileSaveAs", choosing(other));
    EXPECT_EQ(AppOptions.IniFileName, other + ".vset");
    EXPECT_EQ(setsIn(other + ".vset"), "Default 7 ");
    EXPECT_EQ(dialog.text("lblFileName txtNameOfSet"), "other.vset|Default");
    // Without a name in force, Save asks for the file, too.
    AppOptions.SetName.clear();
    EXPECT_EQ(dialog.answering("cmdSets_FileSave", choosing("")), "dialog");
    // What can't be written stays as it was, and is told.
    AppOptions.IniFileName = window_.directory().path("none/my.vset");
    dialog.use("txtNameOfSet X");
    const std::string told = dialog.answering("cmdSets_FileSave", closeBox);
    EXPECT_NE(told.find("none/my.vset: "), std::string::npos) << told;
    EXPECT_EQ(AppOptions.SetName, "Default");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "7");
  });
}

TEST_F(SettingsSets, areOpenedAndDeleted) {
  const std::string other =
      window_.directory().write("other.vset", setOf("X", "8") + setOf("Y", "9"));
  const std::string large = window_.directory().write("large.vset", "");
  std::filesystem::resize_file(large, (64U << 20U) + 1);
  Dialog::in(window_, [&](Dialog& dialog) {
    dialog.answering("cmdSets_FileOpen", choosing(""));
    EXPECT_EQ(AppOptions.IniFileName, file_);
    dialog.answering("cmdSets_FileOpen", choosing(other));
    EXPECT_EQ(AppOptions.IniFileName, other);
    EXPECT_EQ(dialog.text("lblFileName txtNameOfSet lstListOfSetsNames txtPrint_Copies"),
              "other.vset|X|X|1");
    dialog.answering("cmdSets_FileOpen", [&](QWidget& files) {
      choosing(large)(files);
      QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    });
    EXPECT_EQ(AppOptions.IniFileName + AppOptions.SetName, other + "X") << "as it was";
    // What is deleted is the set in force, whatever name is typed.
    dialog.use("txtNameOfSet Y|cmdSets_Delete");
    EXPECT_EQ(setsIn(other), "Y 9 ");
    EXPECT_EQ(AppOptions.SetName, "Default");
    EXPECT_EQ(lines(dialog), "Y");
    EXPECT_EQ(dialog.text("lstListOfSetsNames"), "") << "which isn't in force";
    dialog.use("cmdSets_Delete");
    EXPECT_EQ(setsIn(other), "Y 9 ") << "there is no set \"Default\"";
    dialog.use("lstListOfSetsNames Y|cmdSets_Delete");
    EXPECT_EQ(readFile(other), "");
    EXPECT_FALSE(dialog.control("cmdSets_Delete").isEnabled());
    dialog.answering("cmdSets_FileOpen", choosing(other));
    EXPECT_EQ(AppOptions.SetName, "") << "a file without sets";
  });
  // A file that is too large is told in the tab, without a box.
  AppOptions.IniFileName = large;
  Dialog::in(window_, [&](Dialog& dialog) {
    EXPECT_NE(dialog.text("lblSetInForce").find(large), std::string::npos);
    EXPECT_EQ(lines(dialog), "");
  });
}

TEST_F(SettingsSets, showTheirTextUntilTheTabIsLeft) {
  Dialog::in(window_, [this](Dialog& dialog) {
    const auto width = [&dialog] { return dialog.control("lstListOfSetsNames").width(); };
    const auto text = [&dialog] { return linesOf(lines(dialog, "lstListOfSets"), '|'); };
    const auto& shown = dialog.control("lstListOfSets");
    dialog.goTo(4);
    const int alone = width();
    EXPECT_FALSE(shown.isVisible());
    dialog.use("cmdSets_ViewIni");
    EXPECT_TRUE(shown.isVisible());
    EXPECT_LT(width(), alone / 2);
    EXPECT_EQ(shown.font().family(), "Courier New");
    EXPECT_EQ(lines(dialog, "lstListOfSets"),
              "<Set SetName=\"A\">|    <Print>|        <NumOfCopies   = \"3\"/>|        "
              "<PrinterName   = \"near\"/>|    <Print/>|<Set/>");
    dialog.use("lstListOfSetsNames Ş");
    EXPECT_EQ(text()[0], "<Set SetName=\"Ş\">");
    dialog.use("cmdSets_ViewIni");
    EXPECT_EQ(width(), alone);
    // One that has gone from the file is shown as it would be written.
    dialog.use("cmdSets_ViewIni|cmdSets_Delete");
    EXPECT_EQ(text().size(), 32U);
    EXPECT_EQ(AppOptions.SetName, "Default");
    dialog.use("cmdSets_Reset");
    EXPECT_EQ(text()[0], "<Set SetName=\"Ş\">");
    EXPECT_EQ(text()[4], "        <NumOfCopies   = \"1\"/>");
    dialog.goTo(3);
    dialog.goTo(4);
    EXPECT_FALSE(shown.isVisible());
  });
}

}  // namespace
}  // namespace qor::test
