// What the dialog makes of a document's settings, and when.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <sstream>

#include <gtest/gtest.h>

#include "settings/printers.h"
#include "windows/palette/vdropdownpalette.h"
#include "windows/settings/dialog.h"
#include "windows/settings/dialog_printers.h"

namespace qor::test {
namespace {

std::string described(const VSetPage& page) {
  std::ostringstream out;
  out << page.NumOfCopies << " copies, sorted " << page.SortByCopies << ", reverse "
      << page.ReverseOrder << ", pages " << page.PrintPagesSet << " \"" << page.PagesForPrint
      << "\", quality " << page.PrintQuality << ", color " << page.PrintColor << ", bin "
      << page.PaperSource << ", paper " << page.PaperSize << " " << page.PaperWidth << "x"
      << page.PaperHeight << ", way " << page.Orientation << ", margins " << page.MarginLeft << " "
      << page.MarginTop << ", code page " << page.BaseCodePage;
  return out.str();
}

std::string described(const FontState& font) {
  const LogFont& face = font.LogFont;
  std::ostringstream out;
  out << face.faceName() << " " << font.Height << " " << font.Width << " " << font.CharSpacing
      << ", weight " << face.Weight << ", flags " << int{face.Italic} << int{face.Underline}
      << int{face.StrikeOut} << ", charset " << int{face.CharSet} << ", color " << font.Color;
  return out.str();
}

// As they are before anybody changes them, with the code page of the tests' reports.
constexpr const char* kUsualPage =
    "1 copies, sorted 0, reverse 0, pages 0 \"\", quality 3, color 1, bin 15, paper 9 210x297, way "
    "1, margins 0 0, code page 1251";
constexpr const char* kUsualFont = "Courier New 10 0 0, weight 400, flags 000, charset 0, color 0";
constexpr const char* kChangedPage =
    "12 copies, sorted 1, reverse 1, pages 2 \"2,4-5\", quality 4, color 3, bin 3, paper 256 "
    "123.4x200.5, way 2, margins 12 34, code page 866";
constexpr const char* kChangedFont =
    "Liberation Serif 14.5 7 -0.5, weight 700, flags 111, charset 204, color 8388608";

// What the edits, boxes and buttons of a tab show.
std::string shownOn(Dialog& dialog, int tab) {
  std::string shown;
  const QWidget& area = *dialog.control<QTabWidget>("Pages_Sets").widget(tab);
  for (QWidget* control : area.findChildren<QWidget*>()) {
    if (const auto* edit = qobject_cast<QLineEdit*>(control))
      shown += "|" + edit->text().toStdString();
    if (const auto* box = qobject_cast<QComboBox*>(control))
      shown += "|" + box->currentText().toStdString();
    if (const auto* button = qobject_cast<QAbstractButton*>(control))
      shown += button->isChecked() ? "|on" : "|off";
    if (const auto* color = qobject_cast<VDropDownPalette*>(control))
      shown += std::to_string(color->color());
  }
  return shown;
}

void changeWhatIsPrinted(Dialog& dialog) {
  dialog.choosePrinter("far");
  dialog.goTo(1);
  dialog.click("chkPrint_Pages_Numbers");
  dialog.type("txtPrint_Pages", "2,4-5");
  dialog.type("txtPrint_Copies", "12");
  for (const char* box :
       {"cbCollate", "chkQuality_High", "chkColor_Colored", "chkPrintOrder_Reverse"})
    dialog.click(box);
  dialog.choose("lstPrint_PaperSource", "Tray 3");
}

// Each change is seen in the example, which stands in its middle: name and letters of the font.
void changeFont(Dialog& dialog) {
  dialog.goTo(2);
  EXPECT_EQ(dialog.texts({"txtFontHeight", "txtFontWidth", "txtFontSpace"}), "10||");
  auto& area = dialog.control("pFontExample");
  QImage before = area.grab().toImage();
  const QRect ink = inkOf(before);
  EXPECT_NEAR(ink.width(), 27 * 8, 4) << "letters of 10 points take 8 pixels";
  EXPECT_NEAR(ink.left(), area.width() - ink.right(), 8);
  EXPECT_NEAR(ink.top(), area.height() - ink.bottom(), 8);
  const std::function<void()> steps[] = {
      [&] { dialog.choose("lstFonts", "Liberation Serif"); },
      [&] { dialog.type("txtFontHeight", "14.5"); },
      [&] { dialog.type("txtFontWidth", "7"); },
      [&] { dialog.type("txtFontSpace", "-0.5"); },
      [&] { dialog.click("chkFontBold"); },
      [&] { dialog.click("chkFontItalic"); },
      [&] { dialog.click("chkFontUnderline"); },
      [&] { dialog.click("chkFontStrikeOut"); },
      [&] { dialog.choose("lstFontCharSet", "204 Cyrillic characters"); },
      [&] {
        dialog.click("pFontColor");
        QWidget* cells = QApplication::activePopupWidget()->focusWidget();
        QTest::keyClick(cells, Qt::Key_Right);
        QTest::keyClick(cells, Qt::Key_Space);
      }};
  int step = 0;
  for (const auto& change : steps) {
    change();
    const QImage after = area.grab().toImage();
    EXPECT_NE(after, std::exchange(before, after)) << step++;
  }
}

void changePage(Dialog& dialog) {
  dialog.goTo(3);
  dialog.click("chkOrientation_Landscape");
  dialog.type("txtLeft", "12");
  dialog.type("txtTop", "34");
  dialog.choose("lstPageSize", "Custom");
  dialog.type("txtPageWidth", "123.4");
  dialog.type("txtPageHeight", "200.5");
  dialog.choose("lstBaseCodePage", "  866  DOS, Russian");
}

void expectSettings(const VDoc& doc, const char* page, const char* font) {
  EXPECT_EQ(described(doc.Settings.Page), page);
  EXPECT_EQ(described(doc.Settings.Font), font);
}

TEST(SettingsDialog, changesTheDocumentOnApplyAlone) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(5)));
  window.doc().PrintScale = 70;
  window.doc().PrintScaleFlag = true;
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(window.doc().PrintScale, 70);
    EXPECT_TRUE(dialog.isOn("chbscaleflag"));
    changeWhatIsPrinted(dialog);
    changeFont(dialog);
    changePage(dialog);
    expectSettings(window.doc(), kUsualPage, kUsualFont);
    dialog.key("Escape");
    EXPECT_FALSE(dialog.form().isVisible());
  });
  expectSettings(window.doc(), kUsualPage, kUsualFont);
  EXPECT_EQ(AppOptions.PrinterName, "");
  // The draft outlives the cancelling, but for its printer.
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(dialog.text("lblPrinter"), "near");
    dialog.choosePrinter("far");
    dialog.goTo(3);
    dialog.type("txtPageWidth", "123.4");
    dialog.type("txtPageHeight", "200.5");
    dialog.goTo(1);
    dialog.click("chkColor_Colored");
    dialog.choose("lstPrint_PaperSource", "Tray 3");
    dialog.key("Return");
    EXPECT_FALSE(dialog.form().isVisible());
  });
  expectSettings(window.doc(), kChangedPage, kChangedFont);
  EXPECT_EQ(AppOptions.PrinterName, "far");
  EXPECT_EQ(gDefaultPrn.DeviceName, "far");
  // A third time nothing is taken from the document, and nothing of the draft is lost.
  // But for the code page, which the window's menu can change.
  window.doc().Settings.Page.NumOfCopies = 77;
  window.doc().Settings.Page.BaseCodePage = 857;
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(dialog.texts({"lblPrinter", "lblFontName"}), "far|Liberation Serif");
    dialog.click("cmdOk");
  });
  EXPECT_EQ(std::exchange(window.doc().Settings.Page.BaseCodePage, 866), 857);
  expectSettings(window.doc(), kChangedPage, kChangedFont);
}

// The button, and what is then applied of the page and of the font. What is as it was before is
// shown so, too.
TEST(SettingsDialog, resetsWhatEachButtonSays) {
  const std::tuple<int, const char*, const char*, const char*, const char*> rows[] = {
      {0, "cmdPrinter_Reset",
       "12 copies, sorted 1, reverse 1, pages 2 \"2,4-5\", quality 4, color 2, bin 3, paper 256 "
       "297x210, way 2, margins 12 34, code page 866",
       kChangedFont, ""},
      {1, "cmdPrint_Reset",
       "1 copies, sorted 0, reverse 1, pages 0 \"\", quality 3, color 1, bin 3, paper 256 "
       "123.4x200.5, way 2, margins 12 34, code page 866",
       kChangedFont, "far"},
      {2, "cmdFont_Reset", kChangedPage, kUsualFont, "far"},
      {3, "cmdPage_Reset", kUsualPage, kChangedFont, "far"},
      {4, "cmdSets_Reset", kUsualPage, kUsualFont, ""}};
  const DialogPrinters printers;
  for (const auto& [tab, button, page, font, printer] : rows) {
    SCOPED_TRACE(button);
    Window window(withSettings(reportOfPages(5)));
    Dialog::in(window, [&, tab = tab, button = button](Dialog& dialog) {
      dialog.click("cmdBringBack");
      const std::string printTab = shownOn(dialog, 1);
      const std::string fontTab = shownOn(dialog, 2);
      const std::string pageTab = shownOn(dialog, 3);
      changeWhatIsPrinted(dialog);
      changeFont(dialog);
      changePage(dialog);
      dialog.goTo(tab);
      dialog.click(button);
      EXPECT_EQ(dialog.text("txtPrint_Copies") == "1", tab == 1 || tab >= 3);
      EXPECT_EQ(shownOn(dialog, 2) == fontTab, tab == 2 || tab == 4);
      EXPECT_EQ(shownOn(dialog, 1) + shownOn(dialog, 3) == printTab + pageTab, tab == 4);
      EXPECT_EQ(dialog.control("pReplaced").isHidden(), tab == 4);
      dialog.click("cmdOk");
    });
    expectSettings(window.doc(), page, font);
    EXPECT_EQ(AppOptions.PrinterName, printer);
  }
}

// What there is to see of the choices that hang on each other.
TEST(SettingsDialog, enablesWhatCanBeUsed) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(12)));
  Dialog::in(window, [&](Dialog& dialog) {
    dialog.goTo(1);
    const auto pages = [&](const char* text) {
      auto& edit = dialog.control("txtPrint_Pages");
      dialog.type("txtPrint_Pages", text);
      EXPECT_EQ(edit.accessibleDescription().toStdString(), dialog.text("lblPagesCount"));
      return dialog.text("lblPagesCount");
    };
    EXPECT_FALSE(dialog.control("txtPrint_Pages").isEnabled());
    dialog.click("chkPrint_Pages_Numbers");
    EXPECT_EQ(dialog.form().focusWidget(), &dialog.control("txtPrint_Pages"));
    EXPECT_EQ(dialog.text("lblPagesCount"), "no page is chosen");
    EXPECT_EQ(pages("3"), "1 page");
    EXPECT_EQ(pages("2,4-5,11-20"), "5 pages");
    EXPECT_EQ(dialog.control("txtPrint_Pages").styleSheet(), "");
    EXPECT_EQ(pages("5-"), "these numbers can't be read");
    EXPECT_NE(dialog.control("txtPrint_Pages").styleSheet(), "");
    dialog.click("chkPrint_Pages_Current");
    EXPECT_EQ(dialog.text("lblPagesCount"), "");
    // The arrows beside the copies.
    auto& arrows = dialog.control<QScrollBar>("cmdPrint_Quantity_UpDown");
    EXPECT_EQ(arrows.height(), dialog.control("txtPrint_Copies").height());
    dialog.type("txtPrint_Copies", "998");
    for (int i = 0; i < 2; ++i) arrows.triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1000");
    dialog.type("txtPrint_Copies", "");
    dialog.key("Tab");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1");
    arrows.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1");
    dialog.goTo(3);
    EXPECT_FALSE(dialog.control("chbscaleflag").isEnabled());
    std::vector<QImage> ways;
    const auto turn = [&](const char* way) {
      dialog.click(way);
      ways.push_back(dialog.control("lblOrientation").grab().toImage());
    };
    const auto sizes = [&] {
      return dialog.texts({"txtPageWidth", "txtPageHeight"}) +
             (dialog.control("txtPageWidth").isEnabled() ? " open" : "") +
             (dialog.control("txtPageHeight").isEnabled() ? " open" : "");
    };
    EXPECT_EQ(dialog.texts({"lblWidthMinMax", "lblHeightMinMax"}),
              "min = 76.2 mm, max = 215.9 mm|min = 127 mm, max = 355.6 mm");
    EXPECT_EQ(sizes(), "210|297");
    dialog.choose("lstPageSize", "Letter   (215.9 x 279.4 mm)");
    EXPECT_EQ(sizes(), "215.9|279.4");
    dialog.choose("lstPageSize", "Custom");
    EXPECT_EQ(sizes(), "215.9|279.4 open open");
    turn("chkOrientation_Landscape");
    EXPECT_EQ(sizes(), "279.4|215 open open") << "the fraction is lost on its way";
    turn("chkOrientation_Auto");
    dialog.choose("lstPageSize", "A5   (148 x 210 mm)");
    EXPECT_EQ(sizes(), "210|148") << "only an upright sheet keeps the order";
    turn("chkOrientation_Portrait");
    EXPECT_EQ(sizes(), "148|210");
    EXPECT_TRUE(ways[0] != ways[1] && ways[1] != ways[2] && ways[2] != ways[0]);
    dialog.goTo(2);
    dialog.choose("lstFontCharSet", "2     Standard symbol set");
    EXPECT_EQ(dialog.text("lblFontName"), "Font not choosen");
    dialog.choose("lstFontCharSet", "0     ANSI characters");
    EXPECT_EQ(dialog.text("lblFontName"), "Courier New");
  });
}

}  // namespace
}  // namespace qor::test
