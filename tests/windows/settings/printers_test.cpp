// The printers of the dialog: what is asked when, what they bring along, and those that are gone.
#include "settings/printers.h"

#include <QComboBox>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "windows/settings/dialog.h"
#include "windows/settings/dialog_printers.h"

namespace qor::test {
namespace {

std::string listed(Dialog& dialog) {
  const auto count = [&](const char* name) {
    return std::to_string(dialog.control<QComboBox>(name).count());
  };
  return dialog.texts({"lblPrinter", "lblPrinterNote"}) + "|" + count("lstPageSize") + "|" +
         count("lstPrint_PaperSource") + "|" +
         (dialog.control("cmdOk").isEnabled() ? "ready" : dialog.text("lblWaits")) +
         (dialog.control("cmdPrint").isEnabled() ? "|prints" : "");
}

bool waitFor(Dialog& dialog, const std::string& state) {
  if (QTest::qWaitFor([&] { return listed(dialog) == state; })) return true;
  ADD_FAILURE() << listed(dialog);
  return false;
}

TEST(SettingsPrinters, thatAreSilentHoldUpNobody) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  Dialog::in(window, [&](Dialog& dialog) {
    waitFor(dialog, "near||4|4|ready|prints");
    EXPECT_EQ(dialog.text("lblWidthMinMax"), "min = 76.2 mm, max = 215.9 mm");
    dialog.choose("treePrinters", "silent");
    EXPECT_EQ(listed(dialog), "silent|Asking the printer …|0|0|Asking the printer …");
    EXPECT_EQ(dialog.texts({"lblWidthMinMax", "lblHeightMinMax"}), "|");
    dialog.choosePrinter("far");
    EXPECT_EQ(listed(dialog), "far||4|2|ready|prints");
    // Nodes tell once they are opened.
    auto& tree = dialog.control<QTreeWidget>("treePrinters");
    QTreeWidgetItem* pdf = tree.findItems("Microsoft Print to PDF", Qt::MatchExactly).value(0);
    EXPECT_EQ(pdf->childCount(), 0);
    pdf->setExpanded(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pdf->childCount() > 0; }));
    dialog.choose("treePrinters", "silent");
    dialog.choosePrinter("far");
    // What an answer does to the rows about a printer chooses none.
    const auto nodeOf = [&](const char* name) {
      return tree.findItems(name, Qt::MatchExactly).value(0);
    };
    QTreeWidgetItem* server = nodeOf("PrintServer");
    EXPECT_EQ(server->child(server->childCount() - 1)->text(0).left(17), "om_label_62x100mm");
    server->setExpanded(true);
    tree.setCurrentItem(server->child(0));
    printers.setSilent(false);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return nodeOf("silent")->childIndicatorPolicy() != QTreeWidgetItem::ShowIndicator;
    }));
    EXPECT_EQ(listed(dialog), "far||4|2|ready|prints");
    dialog.choose("treePrinters", "silent");
    waitFor(dialog, "silent|The printer doesn't answer.|0|0|ready|prints");
    dialog.choosePrinter("far");
    dialog.click("cmdOk");
  });
  // A printer that has gone since is told, and what it could do is gone with it.
  printers.remove("far");
  Dialog::in(window, [&](Dialog& dialog) {
    waitFor(dialog, "|There is no such printer any more: far|0|0|ready|prints");
    EXPECT_EQ(dialog.texts({"lblWidthMinMax", "lblHeightMinMax"}), "|");
    const auto& tree = dialog.control<QTreeWidget>("treePrinters");
    for (const char* name : {"PrintServer", "Microsoft Print to PDF"})
      EXPECT_TRUE(tree.findItems(name, Qt::MatchExactly).value(0)->isExpanded()) << name;
    dialog.click("cmdPrinter_Reset");
    EXPECT_EQ(listed(dialog), "near||4|4|ready|prints");
    dialog.choose("treePrinters", "PrintServer");
    waitFor(dialog, "PrintServer||0|0|ready|prints");
  });
}

// Size and colour of the printer take the place of the user's own, who is told and can have them
// back.
TEST(SettingsPrinters, bringTheirOwnPaperAndColorAlong) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  const auto values = [](Dialog& dialog) {
    std::string text = dialog.texts({"txtPageWidth", "txtPageHeight", "lstPageSize"});
    for (const char* color : {"Default", "Mono", "Colored"})
      if (dialog.isOn(std::string("chkColor_") + color)) text.append("|").append(color);
    return text + (dialog.control("pReplaced").isHidden() ? "" : "|" + dialog.text("lblReplaced"));
  };
  const std::string told = "Paper size and colour are those of the printer now. Before: ";
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(values(dialog),
              "210|297|A4   (210 x 297 mm)|Colored|" + told + "210 x 297 mm, Monochrome print");
    dialog.click("cmdBringBack");
    EXPECT_EQ(values(dialog), "210|297|A4   (210 x 297 mm)|Mono");
    dialog.goTo(1);
    dialog.click("chkColor_Colored");
    dialog.goTo(0);
    dialog.choosePrinter("far");
    EXPECT_EQ(values(dialog), "148|210||Mono|" + told + "210 x 297 mm, Colored print");
    dialog.choosePrinter("near");
    EXPECT_EQ(values(dialog),
              "210|297|A4   (210 x 297 mm)|Colored|" + told + "210 x 297 mm, Colored print")
        << "those that the user had";
    dialog.goTo(3);
    dialog.choose("lstPageSize", "A5   (148 x 210 mm)");
    dialog.click("cmdOk");
  });
  EXPECT_EQ(window.doc().Settings.Page.PaperWidth, 148);
  // Looking at the same printer again changes nothing.
  Dialog::in(window, [&](Dialog& dialog) {
    waitFor(dialog, "near||4|4|ready|prints");
    EXPECT_EQ(values(dialog), "148|210|A5   (148 x 210 mm)|Colored");
    dialog.click("cmdPrinter_Reset");
    EXPECT_EQ(values(dialog),
              "210|297|A5   (148 x 210 mm)|Colored|" + told + "148 x 210 mm, Colored print");
  });
}

// The draft follows the default printer of the system, which goes without a name.
TEST(SettingsPrinters, areTheDefaultOneWhereNobodyChooses) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  window.doc().PrintScale = 70;
  window.doc().Settings.Page.PaperSize = 0;
  for (const char* usual : {"near", "far"}) {
    printers.makeDefault(usual);
    Dialog::in(window, [&](Dialog& dialog) {
      EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.text("lblPrinter") == usual; }));
      EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.control("cmdOk").isEnabled(); }));
      const auto& tree = dialog.control<QTreeWidget>("treePrinters");
      EXPECT_TRUE(tree.findItems(usual, Qt::MatchExactly).value(0)->isSelected());
      EXPECT_EQ(dialog.text("lstPageSize"), "Custom");
      EXPECT_TRUE(dialog.control("txtPageWidth").isEnabled());
      dialog.click("cmdOk");
    });
    EXPECT_EQ(AppOptions.PrinterName, "");
    EXPECT_EQ(gDefaultPrn.DeviceName, usual);
    EXPECT_EQ(window.doc().PrintScale, 100);
  }
}

TEST(SettingsPrinters, arePrintedToNeverInATest) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  AppOptions.TestMode = true;
  Dialog::in(window, [](Dialog& dialog) {
    EXPECT_TRUE(dialog.control("cmdOk").isEnabled());
    EXPECT_FALSE(dialog.control("cmdPrint").isEnabled());
  });
}

}  // namespace
}  // namespace qor::test
