// The texts of the dialog in its languages, its keys, its room, and the looks of its lists.
#include <QAbstractScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

#include "windows/settings/dialog.h"

namespace qor::test {
namespace {

// The letters of the captions that are seen.
QString letters(Dialog& dialog) {
  QStringList texts;
  const auto& tabs = dialog.control<QTabWidget>("Pages_Sets");
  for (int i = 0; i < tabs.count(); ++i) texts.append(tabs.tabText(i));
  for (const auto* widget : dialog.form().findChildren<QWidget*>())
    if (widget->isVisible())
      texts << widget->property("text").toString() << widget->property("title").toString();
  QString all;
  for (const QString& text : texts) {
    const auto mark = QString(text).replace("&&", "  ").indexOf('&');
    if (mark >= 0) all += text[mark + 1].toLower();
  }
  return all;
}

// Controls that nothing names, for those who hear the dialog.
std::string nameless(Dialog& dialog) {
  std::string names;
  QWidgetList named;
  for (const auto* label : dialog.form().findChildren<QLabel*>()) named.append(label->buddy());
  for (QWidget* widget :
       dialog.form().findChildren<QWidget*>(QRegularExpression("^(txt|lst|treePrinters)")))
    if (!named.contains(widget) && widget->accessibleName().isEmpty())
      names += widget->objectName().toStdString() + " ";
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
      EXPECT_EQ(dialog.form().windowTitle().toStdString(), texts.title);
      for (const auto& [name, text, hint] :
           {std::tuple("cmdOk", texts.apply, texts.applyHint),
            {"chkPrint_Pages_Current", texts.currentPage, ""},
            {"lblFontSpace", texts.fontSpace, ""},
            {"chbscaleflag", texts.scaleToPaper, ""},
            {"cmdPage_Reset", texts.defaults, texts.defaultsHint},
            {"cmdSets_FileOpen", texts.openFile, texts.openFileHint},
            {"cmdSets_FileSave", texts.saveFile, texts.saveFileHint},
            {"cmdSets_FileSaveAs", texts.saveFileAs, texts.saveFileAsHint}}) {
        EXPECT_EQ(QString::fromStdString(dialog.text(name)).remove('&').toStdString(), text);
        EXPECT_EQ(dialog.control(name).toolTip().toStdString(), hint);
      }
      EXPECT_EQ(nameless(dialog), "");
      std::string numbers;
      for (int tab = 0; tab < 5; ++tab) {
        dialog.goTo(tab);
        const QString all = letters(dialog);
        numbers += std::to_string(all.size()) + " ";
        for (const QChar letter : all) EXPECT_EQ(all.count(letter), 1) << id << all.toStdString();
        const auto& area = static_cast<QAbstractScrollArea&>(
            *dialog.control<QTabWidget>("Pages_Sets").currentWidget());
        EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << id << tab;
        EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << id << tab;
      }
      EXPECT_EQ(numbers, served) << id;
    });
  }
}

// From the tabs through what is on one to the buttons, and round. A dialog that is opened again
// stands on its first tab; a small screen's tabs scroll, and its buttons stay in reach.
TEST(SettingsCaptions, areReachedByTabOnAnyScreen) {
  const char* const rows[] = {
      "treePrinters cmdPrinter_Reset ",
      "chkPrint_Pages_All txtPrint_Copies cbCollate chkPrintOrder_Normal chkQuality_Medium "
      "chkColor_Colored lstPrint_PaperSource cmdPrint_Reset ",
      "lstFonts txtFontHeight txtFontWidth txtFontSpace chkFontBold chkFontUnderline "
      "chkFontItalic chkFontStrikeOut pFontColor lstFontCharSet cmdFont_Reset ",
      "chkOrientation_Portrait txtLeft txtTop lstPageSize lstBaseCodePage cmdPage_Reset ",
      "cmdSets_FileOpen cmdSets_FileSave cmdSets_FileSaveAs txtNameOfSet lstListOfSetsNames "
      "cmdSets_Reset "};
  Window window(withSettings(reportOfPages(1)));
  for (const bool small : {false, true}) {
    Dialog::in(window, [&rows, small](Dialog& dialog) {
      auto& tabs = dialog.control<QTabWidget>("Pages_Sets");
      if (small) dialog.form().resize(300, 200);
      EXPECT_EQ(tabs.currentIndex(), 0);
      int tab = 0;
      for (const std::string names : rows) {
        dialog.goTo(tab++);
        tabs.tabBar()->setFocus();
        std::string walked;
        while (!walked.ends_with("tabbar ") && walked.size() < 1000) {
          dialog.key("Tab");
          const QWidget* reached = dialog.form().focusWidget();
          if (!qobject_cast<const QToolButton*>(reached))  // such as scroll a row of tabs
            walked += reached->objectName().toStdString() + " ";
        }
        EXPECT_EQ(walked, names + "cmdBringBack cmdOk cmdPrint cmdCancel qt_tabwidget_tabbar ");
        const QSize size = dialog.form().size();
        EXPECT_TRUE(!small || (size.width() <= 420 && size.height() <= 300));
        EXPECT_TRUE(dialog.form().rect().contains(dialog.control("cmdCancel").geometry()));
      }
    });
  }
}

// Each name in its own face, in a row of its height.
TEST(SettingsDialog, listsFontsInTheirFaces) {
  Window window(withSettings(reportOfPages(1)));
  Dialog::in(window, [&](Dialog& dialog) {
    dialog.goTo(2);
    auto& fonts = dialog.control<QListView>("lstFonts");
    for (const char* name : {"Liberation Mono", "DejaVu Sans"}) {
      const QModelIndex row = fonts.model()->match(fonts.model()->index(0, 0), 0, name).value(0);
      fonts.scrollTo(row);
      const QImage picture = fonts.viewport()->grab(fonts.visualRect(row)).toImage();
      Window::settle();
      QFont face = fonts.font();
      face.setFamily(name);
      const QFontMetrics metrics(face);
      EXPECT_NEAR(inkOf(picture).width(), metrics.horizontalAdvance(name), 4);
      EXPECT_EQ(fonts.visualRect(row).height(), metrics.height() + 4);
    }
  });
}

// Bold text in the colour of links in the tree, a fixed pitch where labels are padded, and links'
// colour for what is usual.
TEST(SettingsDialog, marksWhatIsUsual) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  Dialog::in(window, [&](Dialog& dialog) {
    const QColor usual = dialog.form().palette().color(QPalette::Link);
    dialog.choosePrinter("far");
    dialog.choosePrinter("near");
    std::string marked;
    const auto& tree = dialog.control<QTreeWidget>("treePrinters");
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
      const QTreeWidgetItem& item = *tree.topLevelItem(i);
      marked += item.text(0).toStdString();
      if (item.font(0).bold() && item.foreground(0).color() == usual) marked += "*";
      for (int j = 0; item.text(0) == "near" && j < item.childCount(); ++j) {
        const QTreeWidgetItem* leaf = item.child(j)->child(0);
        if (leaf != nullptr && leaf->font(0).family() == "Courier New")
          marked += "/" + item.child(j)->text(0).toStdString();
      }
      marked += "|";
    }
    for (const char* list : {"lstPrint_PaperSource", "lstPageSize"}) {
      const auto& box = dialog.control<QComboBox>(list);
      for (int i = 0; i < box.count(); ++i)
        if (box.itemData(i, Qt::ForegroundRole).value<QBrush>().color() == usual)
          marked += box.itemText(i).toStdString() + "|";
    }
    EXPECT_EQ(marked,
              "PrintServer|Microsoft Print to PDF|far|silent|near*/Printer Parameters/Paper Size|"
              "Automatically Select|Letter   (215.9 x 279.4 mm)|A4   (210 x 297 mm)|");
  });
}

}  // namespace
}  // namespace qor::test
