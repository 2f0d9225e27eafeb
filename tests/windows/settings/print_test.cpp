// Printing from the window: which pages, how they lie, and what the user is told of it.
#include <QApplication>
#include <QProgressDialog>

#include "windows/settings/dialog.h"

namespace qor::test {
namespace {

// Pages "P1" and so on, each with its name and a mark to the right of it.
std::string namedPages(int pages) {
  std::string report;
  for (int page = 1; page <= pages; ++page)
    report += "P" + std::to_string(page) + std::string(40, ' ') + "M\r\n\f";
  return report;
}

std::string target(const Window& window) {
  return window.directory().path("report(print).pdf");
}

// The names of the pages in a file, in its order; the file goes.
std::string takePages(const Window& window) {
  if (!window.directory().has("report(print).pdf")) return "none";
  std::string names;
  for (const PdfWord& word : readPdf(target(window)).words)
    if (word.text != "M") names += word.text;
  std::filesystem::remove(target(window));
  return names;
}

TEST(SettingsPrint, sendsTheChosenPagesAndSaysWhere) {
  const DialogPrinters printers;
  Window window(withSettings(namedPages(6)));
  const std::string where = "Printed to " + target(window);
  const std::tuple<std::string, const char*, std::string> rows[] = {
      {"chkPrint_Pages_All", "P1P2P3P4P5P6", where},
      {"chkPrint_Pages_Current", "P3", where},
      {"chkPrint_Pages_Numbers|txtPrint_Pages 2,4-5|txtPrint_Copies 2", "P2P4P5",
       where + ". The file holds each page once."},
      {"chkPrintOrder_Reverse|txtPrint_Copies 1", "P5P4P2", where},
      {"chkPrintOrder_Normal|txtPrint_Pages 9", "none", "There is no page to print."},
      {"txtPrint_Pages", "none", "There is no page to print."},
      {"txtPrint_Pages 7-", "none", "7-"}};
  window.press("PgDown", 2);
  for (const auto& [steps, pages, told] : rows) {
    Dialog::in(window, [&, steps = steps](Dialog& dialog) {
      if (AppOptions.PrinterName.empty()) dialog.choosePrinter(kPdfFilePrinter);
      dialog.use(steps + "|cmdPrint");
    });
    EXPECT_EQ(takePages(window), pages);
    EXPECT_NE(window.status().find(told), std::string::npos) << window.status();
    EXPECT_EQ(window.page(), 3);
  }
  for (QMessageBox* box : window.form().findChildren<QMessageBox*>()) box->close();
  window.press("PgDown");
  EXPECT_EQ(window.status(), "");
}

// A refused job is told once, and the dialog has lost nothing; in a test there is none.
TEST(SettingsPrint, tellsOfPrintersThatRefuse) {
  const DialogPrinters printers;
  Window window(withSettings(namedPages(2)));
  Dialog::in(window, [](Dialog& dialog) { dialog.use("txtPrint_Copies 3|cmdPrint"); });
  EXPECT_NE(window.status().find("not printed: near: rejects jobs"), std::string::npos);
  const auto boxes = window.form().findChildren<QMessageBox*>();
  ASSERT_EQ(boxes.size(), 1);
  boxes.front()->close();
  AppOptions.TestMode = true;
  Dialog::in(window, [](Dialog& dialog) {
    EXPECT_EQ(dialog.text("txtPrint_Copies"), "3");
    EXPECT_TRUE(dialog.control("cmdOk").isEnabled());
    EXPECT_FALSE(dialog.control("cmdPrint").isEnabled());
  });
}

// The view's sheet of 210 mm shrinks to one of 148 mm, whatever zoom is in force; Apply, or another
// view, scales nothing.
TEST(SettingsPrint, scalesToThePaperInTheWideView) {
  for (const int zoom : {6, 8, 12, 13}) {
    SCOPED_TRACE(zoom);
    Window window(withSettings(namedPages(1), {{"ZoomID", zoom}, {"PreviewType", kWideView}}));
    const auto markOf = [&window](const char* steps) {
      Dialog::in(window, [steps](Dialog& dialog) { dialog.use(steps); });
      return readPdf(target(window)).word("M").x;
    };
    const double natural = markOf("lstPageSize A4   (210 x 297 mm)|cmdPrint");
    EXPECT_NEAR(natural, 42 * 25.4 / 12, 1) << "twelve letters of 10 points to the inch";
    EXPECT_NEAR(markOf("lstPageSize A5   (148 x 210 mm)|chbscaleflag|cmdPrint") / natural,
                148.0 / 210, 0.02);
    EXPECT_EQ(window.doc().PrintScale, 100);
    EXPECT_FALSE(window.doc().PrintScaleFlag);
    EXPECT_NEAR(markOf("lstPageSize A4   (210 x 297 mm)|cmdPrint") / natural, 210.0 / 148, 0.05)
        << "as before";
    window.press("cmdView_NormalView");
    EXPECT_NEAR(markOf("lstPageSize A5   (148 x 210 mm)|cmdPrint"), natural, 1);
  }
}

// While pages are printed nobody else changes the document, and the window is closed behind it.
TEST(SettingsPrint, canBeCancelled) {
  const QByteArray page = (QByteArray(60, 'x') + "\r\n").repeated(40) + '\f';
  Window::Start start = withSettings(page.repeated(12000).toStdString());
  start.dynamic = true;
  Window window(start);
  window.form().TimerDynamicBlincTimer();
  window.directory().write("report(print).pdf", "old");
  bool cancelled = false;
  const WhileOpen<QProgressDialog> cancelling([&](QProgressDialog& progress) {
    if (std::exchange(cancelled, true)) return;
    std::ofstream(Window::path(), std::ios::app) << "More\r\n\f";
    const int pages = window.doc().PageCount;
    window.form().TimerDynamicBlincTimer();
    window.form().ShowPage();
    EXPECT_EQ(window.doc().PageCount, pages);
    EXPECT_EQ(progress.windowTitle(), "Printing");
    window.form().close();
    EXPECT_TRUE(window.form().isVisible());
    QTest::keyClick(&progress, Qt::Key_Escape);
  });
  Dialog::in(window, [](Dialog& dialog) { dialog.use("cmdPrint"); });
  EXPECT_TRUE(cancelled);
  EXPECT_FALSE(window.form().isVisible()) << "as it was asked while pages were printed";
  EXPECT_EQ(window.directory().read("report(print).pdf"), "old");
  EXPECT_EQ(window.directory().names().size(), 2U);
  EXPECT_EQ(window.status().find("Printed"), std::string::npos);
}

}  // namespace
}  // namespace qor::test
