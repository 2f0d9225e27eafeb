// How the lists of the dialog look.
#include <QComboBox>
#include <QListView>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "windows/settings/dialog.h"
#include "windows/settings/dialog_printers.h"

namespace qor::test {
namespace {

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
    auto& tree = dialog.control<QTreeWidget>("treePrinters");
    dialog.choosePrinter("far");
    dialog.choosePrinter("near");
    std::string names;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
      const QTreeWidgetItem& item = *tree.topLevelItem(i);
      names += item.text(0).toStdString() + "|";
      EXPECT_EQ(item.font(0).bold(), item.text(0) == "near");
      EXPECT_EQ(item.foreground(0).color() == usual, item.text(0) == "near");
    }
    EXPECT_EQ(names, "PrintServer|Microsoft Print to PDF|far|silent|near|");
    QTreeWidgetItem* node = tree.findItems("near", Qt::MatchExactly).value(0);
    for (int i = 0; i < node->childCount(); ++i) {
      const QTreeWidgetItem& branch = *node->child(i);
      if (branch.childCount() == 0) continue;
      const bool aligned = branch.text(0) == "Printer Parameters" || branch.text(0) == "Paper Size";
      EXPECT_EQ(branch.child(0)->font(0).family() == "Courier New", aligned);
      EXPECT_NE(branch.font(0).family(), "Courier New");
    }
    for (const auto& [list, rows] :
         {std::pair("lstPrint_PaperSource", "Automatically Select|"),
          {"lstPageSize", "Letter   (215.9 x 279.4 mm)|A4   (210 x 297 mm)|"}}) {
      const auto& box = dialog.control<QComboBox>(list);
      std::string colored;
      for (int i = 0; i < box.count(); ++i) {
        if (box.itemData(i, Qt::ForegroundRole).value<QBrush>().color() == usual)
          colored += box.itemText(i).toStdString() + "|";
      }
      EXPECT_EQ(colored, rows);
    }
  });
}

}  // namespace
}  // namespace qor::test
