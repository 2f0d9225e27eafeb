// Sets and their file in the dialog. Files are read back as lines and through the program's own
// runs elsewhere.
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStringListModel>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "windows/settings/dialog.h"
#include "windows/settings/dialog_printers.h"

namespace qor::test {
namespace {

std::string setOf(const std::string& name, const std::string& copies) {
  return "<Set SetName=\"" + name + "\">\r\n    <Print>\r\n        <NumOfCopies   = \"" + copies +
         "\"/>\r\n        <PrinterName   = \"near\"/>\r\n    <Print/>\r\n<Set/>\r\n";
}

std::string contentOf(const std::string& path) {
  std::ostringstream out;
  out << std::ifstream(path).rdbuf();
  return out.str();
}

// The names of the sets in a file, with the copies of each, in its order.
std::string setsIn(const std::string& path) {
  std::string sets;
  std::istringstream lines(contentOf(path));
  for (std::string line; std::getline(lines, line);) {
    for (const char* key : {"SetName=\"", "NumOfCopies   = \""}) {
      const auto at = line.find(key);
      if (at == std::string::npos) continue;
      const auto start = at + std::string(key).size();
      sets += line.substr(start, line.find('"', start) - start) + " ";
    }
  }
  return sets;
}

// A window whose set file holds A, B and one that is broken, and whose set in force is A.
class SettingsSets : public testing::Test {
 protected:
  SettingsSets() {
    file_ = window_.directory().write("my.vset",
                                      setOf("A", "3") + setOf("B", "5") + setOf("Broken", "many"));
    AppOptions.WorkDir = window_.directory().path("");
    AppOptions.IniFileName = file_;
    AppOptions.SetName = "A";
  }

  static std::string names(Dialog& dialog) {
    const auto& model =
        static_cast<QStringListModel&>(*dialog.control<QListView>("lstListOfSetsNames").model());
    return model.stringList().join(' ').toStdString();
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

  const DialogPrinters printers_;
  Window window_{withSettings(reportOfPages(1))};
  std::string file_;
};

TEST_F(SettingsSets, areLoadedByClicksAndKeysWhole) {
  Dialog::in(window_, [this](Dialog& dialog) {
    dialog.goTo(4);
    EXPECT_EQ(dialog.texts({"lblFileName", "txtNameOfSet", "lstListOfSetsNames"}), "my.vset|A|A");
    EXPECT_EQ(dialog.control("lblFileName").toolTip().toStdString(), file_);
    EXPECT_TRUE(dialog.control("lblSetInForce").isHidden());
    EXPECT_EQ(names(dialog), "A B Broken");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1") << "the set is in force, but not loaded";
    dialog.choose("lstListOfSetsNames", "A");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "3");
    dialog.control("lstListOfSetsNames").setFocus();
    dialog.key("Down");
    EXPECT_EQ(dialog.texts({"txtNameOfSet", "txtPrint_Copies"}), "B|5");
    EXPECT_EQ(AppOptions.SetName, "B");
    const std::string told = dialog.answering([&] { dialog.key("Down"); }, closeBox);
    EXPECT_NE(told.find("my.vset: set \"Broken\": NumOfCopies: "), std::string::npos) << told;
    EXPECT_EQ(dialog.texts({"txtNameOfSet", "txtPrint_Copies"}), "Broken|5");
    EXPECT_EQ(window_.doc().Settings.Page.NumOfCopies, 1);
    // A set brings its printer along, whose paper and colour then count.
    dialog.choosePrinter("far");
    dialog.choose("lstListOfSetsNames", "A");
    EXPECT_EQ(dialog.texts({"lblPrinter", "txtPageWidth", "lblReplaced"}),
              "near|210|Paper size and colour are those of the printer now. Before: 148 x 210 mm, "
              "Monochrome print");
  });
}

TEST_F(SettingsSets, areSavedUnderTheNameAndTheFileInForce) {
  Dialog::in(window_, [this](Dialog& dialog) {
    dialog.goTo(1);
    dialog.type("txtPrint_Copies", "7");
    dialog.goTo(4);
    dialog.type("txtNameOfSet", "C");
    EXPECT_FALSE(dialog.control("cmdSets_Delete").isEnabled());
    EXPECT_FALSE(dialog.control("cmdSets_ViewIni").isEnabled());
    EXPECT_EQ(dialog.text("lblSetInForce"), "Set in force, which Del removes: A");
    dialog.click("cmdSets_FileSave");
    EXPECT_EQ(setsIn(file_), "C 7 A 3 B 5 Broken many ");
    EXPECT_EQ(names(dialog), "C A B Broken");
    EXPECT_TRUE(dialog.control("cmdSets_ViewIni").isEnabled());
    EXPECT_EQ(dialog.text("lblSetInForce"), "");
    // Cancelled, it goes to the old file all the same; an empty name is "Default".
    dialog.type("txtNameOfSet", "");
    const auto saveAs = [&dialog] { dialog.click("cmdSets_FileSaveAs"); };
    EXPECT_EQ(dialog.answering(saveAs, choosing("")), "dialog");
    EXPECT_EQ(setsIn(file_), "Default 7 C 7 A 3 B 5 Broken many ");
    EXPECT_EQ(AppOptions.SetName, "Default");
    const std::string other = window_.directory().path("other");
    dialog.answering(saveAs, choosing(other));
    EXPECT_EQ(AppOptions.IniFileName, other + ".vset");
    EXPECT_EQ(setsIn(other + ".vset"), "Default 7 ");
    EXPECT_EQ(dialog.texts({"lblFileName", "txtNameOfSet"}), "other.vset|Default");
    // Without a name in force, Save asks for the file, too.
    AppOptions.SetName.clear();
    EXPECT_EQ(dialog.answering([&] { dialog.click("cmdSets_FileSave"); }, choosing("")), "dialog");
    // What can't be written stays as it was, and is told.
    AppOptions.IniFileName = window_.directory().path("none/my.vset");
    const std::string told = dialog.answering([&] { dialog.click("cmdSets_FileSave"); }, closeBox);
    EXPECT_NE(told.find("none/my.vset: "), std::string::npos) << told;
    EXPECT_TRUE(dialog.form().isVisible());
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "7");
  });
}

TEST_F(SettingsSets, areOpenedAndDeleted) {
  const std::string other =
      window_.directory().write("other.vset", setOf("X", "8") + setOf("Y", "9"));
  const std::string large = window_.directory().write("large.vset", "");
  std::filesystem::resize_file(large, (64U << 20U) + 1);
  Dialog::in(window_, [&](Dialog& dialog) {
    dialog.goTo(4);
    const auto open = [&dialog] { dialog.click("cmdSets_FileOpen"); };
    dialog.answering(open, choosing(""));
    EXPECT_EQ(AppOptions.IniFileName, file_);
    dialog.answering(open, choosing(other));
    EXPECT_EQ(AppOptions.IniFileName, other);
    EXPECT_EQ(
        dialog.texts({"lblFileName", "txtNameOfSet", "lstListOfSetsNames", "txtPrint_Copies"}),
        "other.vset|X|X|1");
    // What is deleted is the set in force, whatever name is typed.
    dialog.type("txtNameOfSet", "Y");
    EXPECT_TRUE(dialog.control("cmdSets_Delete").isEnabled());
    dialog.click("cmdSets_Delete");
    EXPECT_EQ(setsIn(other), "Y 9 ");
    EXPECT_EQ(AppOptions.SetName, "Default");
    EXPECT_EQ(names(dialog), "Y");
    EXPECT_EQ(dialog.text("lstListOfSetsNames"), "") << "which isn't in force";
    dialog.click("cmdSets_Delete");
    EXPECT_EQ(setsIn(other), "Y 9 ") << "there is no set \"Default\"";
    dialog.choose("lstListOfSetsNames", "Y");
    dialog.click("cmdSets_Delete");
    EXPECT_EQ(contentOf(other), "");
    EXPECT_FALSE(dialog.control("cmdSets_Delete").isEnabled());
  });
  // A file that is too large is told in the tab, without a box.
  AppOptions.IniFileName = large;
  Dialog::in(window_, [&](Dialog& dialog) {
    EXPECT_NE(dialog.text("lblSetInForce").find(large), std::string::npos);
    EXPECT_EQ(names(dialog), "");
  });
}

TEST_F(SettingsSets, showTheirTextUntilTheTabIsLeft) {
  Dialog::in(window_, [this](Dialog& dialog) {
    const auto lines = [&dialog] {
      const auto& model =
          static_cast<QStringListModel&>(*dialog.control<QListView>("lstListOfSets").model());
      return model.stringList();
    };
    const auto width = [&dialog] { return dialog.control("lstListOfSetsNames").width(); };
    dialog.goTo(4);
    const int alone = width();
    EXPECT_FALSE(dialog.control("lstListOfSets").isVisible());
    dialog.click("cmdSets_ViewIni");
    EXPECT_TRUE(dialog.control("lstListOfSets").isVisible());
    EXPECT_LT(width(), alone / 2);
    EXPECT_EQ(dialog.control("lstListOfSets").font().family(), "Courier New");
    EXPECT_EQ(lines().join('|').toStdString(),
              "<Set SetName=\"A\">|    <Print>|        <NumOfCopies   = \"3\"/>|        "
              "<PrinterName   = \"near\"/>|    <Print/>|<Set/>");
    dialog.choose("lstListOfSetsNames", "B");
    EXPECT_EQ(lines().value(2).toStdString(), "        <NumOfCopies   = \"5\"/>");
    dialog.click("cmdSets_ViewIni");
    EXPECT_EQ(width(), alone);
    // One that has gone from the file is shown as it would be written.
    dialog.click("cmdSets_ViewIni");
    dialog.click("cmdSets_Delete");
    EXPECT_EQ(lines().size(), 32);
    dialog.click("cmdSets_Reset");
    EXPECT_EQ(lines().value(0).toStdString(), "<Set SetName=\"B\">");
    EXPECT_EQ(lines().value(4).toStdString(), "        <NumOfCopies   = \"1\"/>");
    dialog.goTo(3);
    dialog.goTo(4);
    EXPECT_FALSE(dialog.control("lstListOfSets").isVisible());
  });
}

}  // namespace
}  // namespace qor::test
