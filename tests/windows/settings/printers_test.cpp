// The printers of the dialog: what is asked when, what they bring along, and those that are gone.
#include "settings/printers.h"

#include <QTreeWidget>

#include "windows/settings/dialog.h"

namespace qor::test {
namespace {

std::string listed(Dialog& dialog) {
  const auto count = [&](const char* name) {
    return std::to_string(dialog.control<QComboBox>(name).count());
  };
  return dialog.text("lblPrinter lblPrinterNote") + "|" + count("lstPageSize") + "|" +
         count("lstPrint_PaperSource") + "|" + dialog.text("lblWidthMinMax").substr(0, 10) + "|" +
         (dialog.control("cmdOk").isEnabled() ? "ready" : dialog.text("lblWaits"));
}

void waitFor(Dialog& dialog, const std::string& state) {
  EXPECT_TRUE(QTest::qWaitFor([&] { return listed(dialog) == state; })) << listed(dialog);
}

QTreeWidgetItem* nodeOf(Dialog& dialog, const char* name) {
  auto& tree = dialog.control<QTreeWidget>("treePrinters");
  return tree.findItems(name, Qt::MatchExactly).value(0);
}

TEST(SettingsPrinters, thatAreSilentHoldUpNobody) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  Dialog::in(window, [&](Dialog& dialog) {
    waitFor(dialog, "near||4|4|min = 148 |ready");
    dialog.use("treePrinters silent");
    EXPECT_EQ(listed(dialog), "silent|Asking the printer …|0|0||Asking the printer …");
    dialog.choosePrinter("far");
    EXPECT_EQ(listed(dialog), "far||4|2|min = 62 m|ready");
    // Nodes tell once they are opened.
    QTreeWidgetItem* pdf = nodeOf(dialog, kPdfFilePrinter);
    EXPECT_EQ(pdf->childCount(), 0);
    pdf->setExpanded(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pdf->childCount() > 0; }));
    // What an answer does to the rows about a printer chooses none.
    QTreeWidgetItem* server = nodeOf(dialog, "PrintServer");
    EXPECT_EQ(server->child(server->childCount() - 1)->text(0).left(17), "om_label_62x100mm");
    server->setExpanded(true);
    dialog.control<QTreeWidget>("treePrinters").setCurrentItem(server->child(0));
    printers.setSilent(false);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return nodeOf(dialog, "silent")->childIndicatorPolicy() != QTreeWidgetItem::ShowIndicator;
    }));
    EXPECT_EQ(listed(dialog), "far||4|2|min = 62 m|ready");
    dialog.use("treePrinters silent");
    waitFor(dialog, "silent|The printer doesn't answer.|0|0||ready");
    dialog.choosePrinter("far");
    dialog.use("cmdOk");
  });
  // A printer that has gone since is told, and what it could do is gone with it.
  printers.remove("far");
  Dialog::in(window, [](Dialog& dialog) {
    waitFor(dialog, "|There is no such printer any more: far|0|0||ready");
    for (const char* name : {"PrintServer", kPdfFilePrinter})
      EXPECT_TRUE(nodeOf(dialog, name)->isExpanded()) << name;
    dialog.use("cmdPrinter_Reset");
    EXPECT_EQ(listed(dialog), "near||4|4|min = 148 |ready");
    dialog.use("treePrinters PrintServer");
    waitFor(dialog, "PrintServer||0|0||ready");
  });
}

// Size and colour of the printer take the place of the user's own, who is told and can have them
// back.
TEST(SettingsPrinters, bringTheirOwnPaperAndColorAlong) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  const auto expectValues = [](Dialog& dialog, const std::string& values,
                               const std::string& before) {
    std::string text = dialog.text("txtPageWidth txtPageHeight lstPageSize");
    for (const char* color : {"Default", "Mono", "Colored"})
      if (dialog.isOn(("chkColor_" + std::string(color)).c_str())) text.append("|").append(color);
    EXPECT_EQ(text, values);
    EXPECT_EQ(dialog.control("pReplaced").isHidden() ? "" : dialog.text("lblReplaced"),
              before.empty()
                  ? ""
                  : "Paper size and colour are those of the printer now. Before: " + before);
  };
  Dialog::in(window, [&](Dialog& dialog) {
    expectValues(dialog, "210|297|A4   (210 x 297 mm)|Colored", "210 x 297 mm, Monochrome print");
    dialog.use("cmdBringBack");
    expectValues(dialog, "210|297|A4   (210 x 297 mm)|Mono", "");
    dialog.use("chkColor_Colored");
    dialog.choosePrinter("far");
    expectValues(dialog, "148|210||Mono", "210 x 297 mm, Colored print");
    dialog.choosePrinter("near");  // what the user had stays in mind
    expectValues(dialog, "210|297|A4   (210 x 297 mm)|Colored", "210 x 297 mm, Colored print");
    dialog.use("lstPageSize A5   (148 x 210 mm)|cmdOk");
  });
  // Looking at the same printer again changes nothing.
  Dialog::in(window, [&](Dialog& dialog) {
    waitFor(dialog, "near||4|4|min = 148 |ready");
    expectValues(dialog, "148|210|A5   (148 x 210 mm)|Colored", "");
    dialog.use("cmdPrinter_Reset");
    expectValues(dialog, "210|297|A5   (148 x 210 mm)|Colored", "148 x 210 mm, Colored print");
    dialog.use("cmdOk");
  });
  Dialog::in(window, [&](Dialog& dialog) {
    dialog.use("cmdPrinter_Reset");
    expectValues(dialog, "210|297|A5   (148 x 210 mm)|Colored", "");
  });
}

// The draft follows the default printer of the system, which goes without a name.
TEST(SettingsPrinters, areTheDefaultOneWhereNobodyChooses) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  window.doc().Settings.Page.PaperSize = 0;
  for (const char* usual : {"near", "far"}) {
    printers.makeDefault(usual);
    Dialog::in(window, [&](Dialog& dialog) {
      EXPECT_TRUE(QTest::qWaitFor([&] {
        return dialog.text("lblPrinter") == usual && dialog.control("cmdOk").isEnabled();
      }));
      EXPECT_TRUE(nodeOf(dialog, usual)->isSelected());
      EXPECT_EQ(dialog.text("lstPageSize"), "Custom");
      EXPECT_TRUE(dialog.control("txtPageWidth").isEnabled());
      dialog.use("cmdOk");
    });
    EXPECT_EQ(AppOptions.PrinterName, "");
    EXPECT_EQ(gDefaultPrn.DeviceName, usual);
  }
}

}  // namespace
}  // namespace qor::test
