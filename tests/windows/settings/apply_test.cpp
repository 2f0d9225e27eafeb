// What the dialog makes of a document's settings, and when.
#include <QApplication>
#include <QTabWidget>

#include "settings/printers.h"
#include "windows/settings/dialog.h"

namespace qor::test {
namespace {

// Copies, sorted, reverse, pages and their list; quality, colour and bin; paper, its sides and how
// it lies; margins and code page. Then the font: height, width, space, weight, flags, character
// set, colour and name.
std::string described(const VDoc& doc) {
  const VSetPage& page = doc.Settings.Page;
  const FontState& font = doc.Settings.Font;
  const LogFont& face = font.LogFont;
  std::ostringstream out;
  const auto add = [&out](const auto&... values) { ((out << values << " "), ...); };
  add(page.NumOfCopies, page.SortByCopies, page.ReverseOrder, page.PrintPagesSet,
      page.PagesForPrint, page.PrintQuality, page.PrintColor, page.PaperSource, page.PaperSize,
      page.PaperWidth, page.PaperHeight, page.Orientation, page.MarginLeft, page.MarginTop,
      page.BaseCodePage);
  add("font", font.Height, font.Width, font.CharSpacing, face.Weight, +face.Italic, +face.Underline,
      +face.StrikeOut, +face.CharSet, font.Color, face.faceName());
  return out.str();
}

// As they are before anybody changes them, with the code page of the tests' reports.
const std::string kUsualPage = "1 0 0 0  3 1 15 9 210 297 1 0 0 1251 ";
const std::string kUsualFont = "font 10 0 0 400 0 0 0 0 0 Courier New ";
const std::string kChangedPage = "12 1 1 2 2,4-5 4 3 3 256 123.4 200.5 2 12 34 866 ";
const std::string kChangedFont = "font 14.5 7 -0.5 700 1 1 1 204 8388608 Liberation Serif ";

// What the controls of a tab show; colours describe themselves.
QString shownOn(Dialog& dialog, int tab) {
  QString shown;
  const QWidget& area = *dialog.control<QTabWidget>("Pages_Sets").widget(tab);
  for (const QWidget* control : area.findChildren<QWidget*>())
    for (const char* property : {"text", "currentText", "checked", "accessibleDescription"})
      shown += control->property(property).toString() + "|";
  return shown;
}

// Each change is seen in the example, which stands in its middle: name and letters of the font.
void changeFont(Dialog& dialog) {
  dialog.goTo(2);
  auto& area = dialog.control("pFontExample");
  QImage before = area.grab().toImage();
  const QRect ink = inkOf(before);
  EXPECT_NEAR(ink.width(), 27 * 8, 4) << "letters of 10 points take 8 pixels";
  EXPECT_NEAR(ink.left(), area.width() - ink.right(), 8);
  EXPECT_NEAR(ink.top(), area.height() - ink.bottom(), 8);
  for (const std::string& step :
       linesOf("lstFonts Liberation Serif|txtFontHeight 14.5|txtFontWidth 7|txtFontSpace -0.5|"
               "chkFontBold|chkFontItalic|chkFontUnderline|chkFontStrikeOut|"
               "lstFontCharSet 204 Cyrillic characters|pFontColor",
               '|')) {
    dialog.use(step);
    if (QWidget* cells = QApplication::activePopupWidget()) {
      for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Space})
        QTest::keyClick(cells->focusWidget(), key);
    }
    const QImage after = area.grab().toImage();
    EXPECT_NE(after, std::exchange(before, after)) << step;
  }
}

void changeAll(Dialog& dialog) {
  dialog.choosePrinter("far");
  dialog.use(
      "chkPrint_Pages_Numbers|txtPrint_Pages 2,4-5|txtPrint_Copies 12|cbCollate|chkQuality_High|"
      "chkColor_Colored|chkPrintOrder_Reverse|lstPrint_PaperSource Tray 3");
  changeFont(dialog);
  dialog.use(
      "chkOrientation_Landscape|txtLeft 12|txtTop 34|lstPageSize Custom|txtPageWidth 123.4|"
      "txtPageHeight 200.5|lstBaseCodePage   866  DOS, Russian");
}

TEST(SettingsDialog, changesTheDocumentOnApplyAlone) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(5)));
  window.doc().PrintScaleFlag = true;
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(dialog.text("txtFontHeight txtFontWidth txtFontSpace"), "10||");
    EXPECT_TRUE(dialog.isOn("chbscaleflag"));
    changeAll(dialog);
    EXPECT_EQ(described(window.doc()), kUsualPage + kUsualFont);
    dialog.key("Escape");
  });
  EXPECT_EQ(described(window.doc()), kUsualPage + kUsualFont);
  EXPECT_EQ(AppOptions.PrinterName, "");
  // The draft outlives the cancelling, but for its printer.
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(dialog.text("lblPrinter"), "near");
    dialog.choosePrinter("far");
    dialog.use(
        "txtPageWidth 123.4|txtPageHeight 200.5|chkColor_Colored|lstPrint_PaperSource Tray 3");
    dialog.key("Return");
  });
  EXPECT_EQ(described(window.doc()), kChangedPage + kChangedFont);
  EXPECT_EQ(AppOptions.PrinterName + gDefaultPrn.DeviceName, "farfar");
  // A third time nothing is taken from the document, and nothing of the draft is lost.
  // But for the code page, which the window's menu can change.
  window.doc().Settings.Page.NumOfCopies = 77;
  window.doc().Settings.Page.BaseCodePage = 857;
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_EQ(dialog.text("lblPrinter lblFontName"), "far|Liberation Serif");
    dialog.use("cmdOk");
  });
  EXPECT_EQ(std::exchange(window.doc().Settings.Page.BaseCodePage, 866), 857);
  EXPECT_EQ(described(window.doc()), kChangedPage + kChangedFont);
}

// The button, and what is then applied. What is as it was before is shown so, too.
TEST(SettingsDialog, resetsWhatEachButtonSays) {
  const std::tuple<const char*, std::string, const char*> rows[] = {
      {"cmdPrinter_Reset", "12 1 1 2 2,4-5 4 2 3 256 297 210 2 12 34 866 " + kChangedFont, ""},
      {"cmdPrint_Reset", "1 0 1 0  3 1 3 256 123.4 200.5 2 12 34 866 " + kChangedFont, "far"},
      {"cmdFont_Reset", kChangedPage + kUsualFont, "far"},
      {"cmdPage_Reset", kUsualPage + kChangedFont, "far"},
      {"cmdSets_Reset", kUsualPage + kUsualFont, ""}};
  const DialogPrinters printers;
  int tab = 0;
  for (const auto& [button, applied, printer] : rows) {
    SCOPED_TRACE(button);
    Window window(withSettings(reportOfPages(5)));
    Dialog::in(window, [&, button = button](Dialog& dialog) {
      dialog.use("cmdBringBack");
      const QString fontTab = shownOn(dialog, 2);
      const QString otherTabs = shownOn(dialog, 1) + shownOn(dialog, 3);
      changeAll(dialog);
      dialog.use(button);
      EXPECT_EQ(dialog.text("txtPrint_Copies") == "1", tab == 1 || tab >= 3);
      EXPECT_EQ(shownOn(dialog, 2) == fontTab, tab == 2 || tab == 4);
      EXPECT_EQ(shownOn(dialog, 1) + shownOn(dialog, 3) == otherTabs, tab == 4);
      EXPECT_EQ(dialog.control("pReplaced").isHidden(), tab == 4);
      dialog.use("cmdOk");
    });
    EXPECT_EQ(described(window.doc()), applied);
    EXPECT_EQ(AppOptions.PrinterName, printer);
    ++tab;
  }
}

// What there is to see of the choices that hang on each other.
TEST(SettingsDialog, tellsHowManyPagesAndCopiesThereWillBe) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(12)));
  Dialog::in(window, [&](Dialog& dialog) {
    auto& edit = dialog.control("txtPrint_Pages");
    EXPECT_FALSE(edit.isEnabled());
    dialog.use("chkPrint_Pages_Numbers");
    EXPECT_EQ(dialog.form().focusWidget(), &edit);
    for (const auto& [pages, told] : rowsOf(" no page is chosen|3 1 page|2,4-5,11-20 5 pages|"
                                            "5- these numbers can't be read")) {
      dialog.use("txtPrint_Pages " + pages);
      EXPECT_EQ(dialog.text("lblPagesCount"), told);
      EXPECT_EQ(edit.accessibleDescription().toStdString(), told);
      EXPECT_EQ(edit.styleSheet().isEmpty(), pages != "5-");
    }
    dialog.use("chkPrint_Pages_Current");
    EXPECT_EQ(dialog.text("lblPagesCount"), "");
    // The arrows beside the copies.
    auto& arrows = dialog.control<QScrollBar>("cmdPrint_Quantity_UpDown");
    dialog.use("txtPrint_Copies 998");
    for (int i = 0; i < 2; ++i) arrows.triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1000");
    dialog.use("txtPrint_Copies");
    dialog.key("Tab");
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1");
    arrows.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "1");
  });
}

TEST(SettingsDialog, showsTheSheetAsItIsChosen) {
  const DialogPrinters printers;
  Window window(withSettings(reportOfPages(1)));
  Dialog::in(window, [&](Dialog& dialog) {
    EXPECT_FALSE(dialog.control("chbscaleflag").isEnabled());
    EXPECT_EQ(dialog.text("lblWidthMinMax lblHeightMinMax"),
              "min = 148 mm, max = 215.9 mm|min = 210 mm, max = 297 mm");
    // A fraction is lost on its way, and only an upright sheet keeps the order of a paper's sides.
    const std::tuple<const char*, const char*, bool> rows[] = {
        {"chkOrientation_Auto", "210|297", false},
        {"chkOrientation_Portrait|lstPageSize Letter   (215.9 x 279.4 mm)", "215.9|279.4", false},
        {"lstPageSize Custom", "215.9|279.4", true},
        {"chkOrientation_Landscape", "279.4|215", true},
        {"chkOrientation_Auto", "279.4|215", true},
        {"lstPageSize A5   (148 x 210 mm)", "210|148", false},
        {"chkOrientation_Portrait", "148|210", false}};
    std::vector<QImage> ways;
    for (const auto& [step, sides, open] : rows) {
      dialog.use(step);
      EXPECT_EQ(dialog.text("txtPageWidth txtPageHeight"), sides) << step;
      for (const char* edit : {"txtPageWidth", "txtPageHeight"})
        EXPECT_EQ(dialog.control(edit).isEnabled(), open) << step;
      ways.push_back(dialog.control("lblOrientation").grab().toImage());
    }
    EXPECT_TRUE(ways[2] != ways[3] && ways[3] != ways[4] && ways[4] != ways[2]);
    dialog.use("lstFontCharSet 2     Standard symbol set");
    EXPECT_EQ(dialog.text("lblFontName"), "Font not choosen");
    dialog.use("lstFontCharSet 0     ANSI characters");
    EXPECT_EQ(dialog.text("lblFontName"), "Courier New");
  });
}

}  // namespace
}  // namespace qor::test
