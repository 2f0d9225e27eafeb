// What exports take from the view, and what they leave of it.
#include "support/test.h"
#include "windows/export/driven_dialog.h"

namespace qor::test {
namespace {

// A line that is wider than the sheet, on both pages.
const std::string kWide =
    "start" + std::string(60, '-') + " middle " + std::string(95, '-') + " end\r\n";
const std::string kReport = kWide + "\f" + kWide + "\f";

// The sheet as the view has it.
std::string sheetOf(Window& window) {
  const VSet& settings = window.doc().Settings;
  return std::to_string(settings.Prn.LogPixelsX) + " " + std::to_string(settings.Scr.view_width) +
         " " + std::to_string(settings.Scr.dpi_x);
}

TEST(ExportedView, staysAsItWas) {
  Window window(withExports(kReport));
  window.press("PgDown");
  QTest::qWait(20);
  const std::string note = window.status();
  ASSERT_NE(note.find("columns"), std::string::npos) << note;
  const std::string sheet = sheetOf(window);
  const QImage page = window.picture("page_control");
  int made = 0;
  for (const auto& [tab, click] :
       {std::pair(0, "chkUseEOFChar"), {5, "chbPNG"}, {4, "chkPrinToPdf"}, {4, "chkPrinToPdf"}}) {
    DrivenDialog::in(window, [&, tab = tab, click = click](DrivenDialog& dialog) {
      dialog.exportTo(tab, {click}, window.directory().path(std::to_string(++made) + ".x"));
    });
    EXPECT_EQ(sheetOf(window), sheet) << click;
    EXPECT_EQ(window.page(), 2);
    EXPECT_EQ(window.picture("page_control"), page);
    QTest::qWait(20);
    EXPECT_EQ(window.status(), note);
  }
  EXPECT_EQ(window.form().madeFiles().size(), 7U);
  window.press("stBarMessage");
  EXPECT_EQ(window.close().at("PreviewType"), 1) << "the note leads to the wide view still";
}

// The window may get another size while the dialog is open, and the report more pages.
TEST(ExportedView, fillsTheWindowBehindTheDialog) {
  Window::Start start = withExports(kReport, Window::zoomed(2));
  start.dynamic = true;
  Window window(start);
  window.resize({800, 480});
  window.form().TimerDynamicBlincTimer();
  DrivenDialog::in(window, [&](DrivenDialog&) {
    std::ofstream(Window::path(), std::ios::app) << kWide + "\f";
    window.form().TimerDynamicBlincTimer();
    EXPECT_EQ(window.doc().PageCount, 2) << "exports have the report to themselves";
    window.resize({1300, 960});
  });
  window.form().TimerDynamicBlincTimer();
  EXPECT_EQ(window.status("lblPageTotal"), "3");
  const QImage seen = window.area().viewport()->grab().toImage();
  EXPECT_EQ(seen.pixelColor(seen.width() - 20, seen.height() - 20), QColor(Qt::white));
  EXPECT_GE(firstInk(seen, seen.rect().adjusted(700, 0, -20, 0)), 0);
}

// The places of the line's middle and end on the page, mm; none of the end where it isn't there.
std::pair<double, double> placesIn(Window& window) {
  const PdfDocument document = readPdf(window.directory().path("report.pdf"));
  return {document.word("middle").x, document.word("end").x};
}

// Only a wide view is scaled to the paper, by the percentage that makes it fit, and only where the
// box says so. F5 takes what the box said last.
TEST(ExportedView, isScaledToThePaper) {
  // 66 columns of 172, at 12 to the inch; and as much of 210 mm.
  constexpr double kNatural = 66 * 25.4 / 12;
  constexpr double kScaled = 66.0 / 172 * 210;
  for (const auto& [view, scale, zoom, middle] : {std::tuple(0, 1, 8, kNatural),
                                                  {1, 0, 6, kNatural},
                                                  {1, 1, 6, kScaled},
                                                  {1, 1, 12, kScaled}}) {
    SCOPED_TRACE(testing::Message() << view << scale << zoom);
    Window window(withExports(kReport, {{"ID_of_Convert", 4},
                                        {"PreviewType", view},
                                        {"CheckPdf", 1},
                                        {"CheckScale", view == 1 ? 1 - scale : scale},
                                        {"ZoomID", zoom}}));
    DrivenDialog::in(window, [view = view](DrivenDialog& dialog) {
      if (view == 1) dialog.click("chkScaleFlag");
      dialog.run();
    });
    const auto made = placesIn(window);
    EXPECT_NEAR(made.first, middle, 3);
    EXPECT_EQ(made.second > 150, middle == kScaled) << made.second;
    window.press("F5");
    EXPECT_EQ(placesIn(window), made);
  }
}

// The width of documents that are told is that of the page as it was shown first, with ten points.
TEST(ExportedView, givesDocumentsItsFirstWidth) {
  for (const int several : {0, 1}) {
    Window window(
        withExports(kReport, {{"ID_of_Convert", 4}, {"MultipageView", several}, {"ZoomID", 9}}));
    const int width = window.doc().Settings.Scr.view_width;
    ASSERT_GT(width, 20);
    window.press("cmdView_ZoomIn");
    window.press("F5");
    const double points = readPdf(window.directory().path("report.pdf")).width / 25.4 * 72;
    EXPECT_NEAR(points, static_cast<int>(width / 1.335), 0.1);
  }
}

}  // namespace
}  // namespace qor::test
