// The texts of the dialog in its languages, its keys, and its room.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <map>

#include <gtest/gtest.h>

#include "language/language.h"
#include "windows/settings/dialog.h"
#include "windows/settings/dialog_printers.h"

namespace qor::test {
namespace {

// What the letters of the captions that are seen choose.
std::multimap<QChar, QString> letters(Dialog& dialog) {
  std::multimap<QChar, QString> all;
  const auto add = [&all](const QString& text) {
    const auto mark = QString(text).replace("&&", "  ").indexOf('&');
    if (mark >= 0) all.emplace(text[mark + 1].toLower(), text);
  };
  const auto& tabs = dialog.control<QTabWidget>("Pages_Sets");
  for (int i = 0; i < tabs.count(); ++i) add(tabs.tabText(i));
  for (const auto* button : dialog.form().findChildren<QAbstractButton*>())
    if (button->isVisible()) add(button->text());
  for (const auto* box : dialog.form().findChildren<QGroupBox*>())
    if (box->isVisible()) add(box->title());
  for (const auto* label : dialog.form().findChildren<QLabel*>())
    if (label->isVisible() && label->buddy() != nullptr) add(label->text());
  return all;
}

// Controls that nothing names, for those who hear the dialog.
QStringList nameless(Dialog& dialog) {
  QStringList names;
  for (QWidget* widget : dialog.form().findChildren<QWidget*>()) {
    const bool named = widget->objectName().startsWith("txt") ||
                       widget->objectName().startsWith("lst") ||
                       widget->objectName() == "treePrinters";
    if (!named) continue;
    const auto labels = dialog.form().findChildren<QLabel*>();
    const bool hasLabel = std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
      return label->buddy() == widget;
    });
    if (!hasLabel && widget->accessibleName().isEmpty()) names.append(widget->objectName());
  }
  return names;
}

TEST(SettingsCaptions, haveLettersThatDoNotClash) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  // How many captions of each tab have a letter, with the nine that are seen beside all of them.
  for (const auto& [id, served] :
       {std::pair("en", "11 23 20 20 17 "), {"ru", "11 28 20 20 17 "}, {"tr", "11 25 19 20 17 "}}) {
    window.form().chooseLanguage(languageOf(id));
    const SettingsTexts& texts = settingsTexts();
    Dialog::in(window, [&, id = id, served = served](Dialog& dialog) {
      const auto plain = [&](const char* name) {
        return QString::fromStdString(dialog.text(name)).remove('&').toStdString();
      };
      EXPECT_EQ(plain("cmdOk"), texts.apply);
      EXPECT_EQ(plain("chkPrint_Pages_Current"), texts.currentPage);
      EXPECT_EQ(plain("lblFontSpace"), texts.fontSpace);
      EXPECT_EQ(plain("chbscaleflag"), texts.scaleToPaper);
      EXPECT_EQ(plain("cmdSets_FileSaveAs"), texts.saveFileAs);
      EXPECT_EQ(dialog.form().windowTitle().toStdString(), texts.title);
      for (const auto& [button, hint] : {std::pair("cmdOk", texts.applyHint),
                                         {"cmdPage_Reset", texts.defaultsHint},
                                         {"cmdSets_FileOpen", texts.openFileHint},
                                         {"cmdSets_FileSave", texts.saveFileHint},
                                         {"cmdSets_FileSaveAs", texts.saveFileAsHint}})
        EXPECT_EQ(dialog.control(button).toolTip().toStdString(), hint);
      EXPECT_EQ(nameless(dialog).join(' ').toStdString(), "");
      std::string numbers;
      for (int tab = 0; tab < 5; ++tab) {
        dialog.goTo(tab);
        const auto all = letters(dialog);
        numbers += std::to_string(all.size()) + " ";
        for (const auto& [letter, text] : all)
          EXPECT_EQ(all.count(letter), 1U)
              << id << tab << text.toStdString() << QString(letter).toStdString();
        const auto& area =
            static_cast<QScrollArea&>(*dialog.control<QTabWidget>("Pages_Sets").currentWidget());
        EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << id << tab;
        EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << id << tab;
      }
      EXPECT_EQ(numbers, served) << id;
    });
  }
}

// From the tabs through what is on one to the buttons, and round.
TEST(SettingsCaptions, areReachedByTab) {
  const std::pair<int, const char*> rows[] = {
      {0, "treePrinters cmdPrinter_Reset "},
      {1,
       "chkPrint_Pages_All txtPrint_Copies cbCollate chkPrintOrder_Normal chkQuality_Medium "
       "chkColor_Colored lstPrint_PaperSource cmdPrint_Reset "},
      {2,
       "lstFonts txtFontHeight txtFontWidth txtFontSpace chkFontBold chkFontUnderline "
       "chkFontItalic chkFontStrikeOut pFontColor lstFontCharSet cmdFont_Reset "},
      {3, "chkOrientation_Portrait txtLeft txtTop lstPageSize lstBaseCodePage cmdPage_Reset "},
      {4,
       "cmdSets_FileOpen cmdSets_FileSave cmdSets_FileSaveAs txtNameOfSet lstListOfSetsNames "
       "cmdSets_Reset "}};
  Window window(withSettings(reportOfPages(1)));
  Dialog::in(window, [&](Dialog& dialog) {
    for (const auto& [tab, names] : rows) {
      dialog.goTo(tab);
      QWidget* bar = dialog.control<QTabWidget>("Pages_Sets").tabBar();
      bar->setFocus();
      std::string walked;
      do {
        dialog.key("Tab");
        walked += dialog.form().focusWidget()->objectName().toStdString() + " ";
      } while (dialog.form().focusWidget() != bar && walked.size() < 1000);
      EXPECT_EQ(walked,
                std::string(names) + "cmdBringBack cmdOk cmdPrint cmdCancel qt_tabwidget_tabbar ");
    }
  });
}

// Each tab anew on its first one; a small screen's tabs scroll, and its buttons stay in reach.
TEST(SettingsCaptions, keepTheDialogUsable) {
  Window window(withSettings(reportOfPages(1)));
  for (int time = 0; time < 2; ++time) {
    Dialog::in(window, [](Dialog& dialog) {
      EXPECT_EQ(dialog.control<QTabWidget>("Pages_Sets").currentIndex(), 0);
      dialog.form().resize(300, 200);
      for (int tab = 0; tab < 5; ++tab) {
        dialog.goTo(tab);
        EXPECT_LE(dialog.form().width(), 420);
        EXPECT_LE(dialog.form().height(), 300);
        EXPECT_TRUE(dialog.form().rect().contains(dialog.control("cmdCancel").geometry()));
      }
    });
  }
}

}  // namespace
}  // namespace qor::test
