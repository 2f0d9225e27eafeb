// Printing from the window: which pages, how they lie, and what the user is told of it.
#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "support/pdf_reader.h"
#include "windows/settings/dialog.h"
#include "windows/settings/dialog_printers.h"

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

// So many that printing them takes a while.
std::string longReport() {
  std::string page;
  for (int line = 0; line < 40; ++line) page += std::string(60, 'x') + "\r\n";
  page += '\f';
  std::string report;
  for (int i = 0; i < 12000; ++i) report += page;
  return report;
}

// The names of the pages in a file, in its order; the file goes.
std::string takePages(const Window& window) {
  if (!std::filesystem::exists(target(window))) return "none";
  std::string names;
  for (const PdfWord& word : readPdf(target(window)).words) {
    if (word.text != "M") names += word.text;
  }
  std::filesystem::remove(target(window));
  return names;
}

TEST(SettingsPrint, sendsTheChosenPagesAndSaysWhere) {
  const DialogPrinters printers;
  Window window(withSettings(namedPages(6)));
  const std::string where = "Printed to " + target(window);
  struct Row {
    std::vector<const char*> clicks;
    const char* numbers;
    const char* copies;
    std::string pages;
    std::string told;
  };
  const Row rows[] = {{{}, "", "1", "P1P2P3P4P5P6", where},
                      {{"chkPrint_Pages_Current"}, "", "1", "P3", where},
                      {{"chkPrint_Pages_Numbers"},
                       "2,4-5",
                       "2",
                       "P2P4P5",
                       where + ". The file holds each page once."},
                      {{"chkPrintOrder_Reverse"}, "2,4-5", "1", "P5P4P2", where},
                      {{"chkPrintOrder_Normal"}, "9", "1", "none", "There is no page to print."},
                      {{}, "", "1", "none", "There is no page to print."},
                      {{}, "7-", "1", "none", "7-"},
                      {{"chkPrint_Pages_All"}, "", "1", "P1P2P3P4P5P6", where}};
  window.press("PgDown", 2);
  for (const Row& row : rows) {
    Dialog::in(window, [&](Dialog& dialog) {
      if (AppOptions.PrinterName.empty()) dialog.choosePrinter("Microsoft Print to PDF");
      dialog.goTo(1);
      for (const char* name : row.clicks) dialog.click(name);
      if (dialog.isOn("chkPrint_Pages_Numbers")) dialog.type("txtPrint_Pages", row.numbers);
      dialog.type("txtPrint_Copies", row.copies);
      dialog.click("cmdPrint");
    });
    EXPECT_EQ(takePages(window), row.pages);
    EXPECT_NE(window.status().find(row.told), std::string::npos) << window.status();
    EXPECT_EQ(window.page(), 3);
  }
  for (QMessageBox* box : window.form().findChildren<QMessageBox*>()) box->close();
  window.press("PgDown");
  EXPECT_EQ(window.status(), "");
}

// A refused job is told once, and the dialog has lost nothing.
TEST(SettingsPrint, tellsOfPrintersThatRefuse) {
  const DialogPrinters printers;
  Window window(withSettings(namedPages(2)));
  Dialog::in(window, [](Dialog& dialog) {
    dialog.goTo(1);
    dialog.type("txtPrint_Copies", "3");
    dialog.click("cmdPrint");
  });
  EXPECT_NE(window.status().find("not printed: near: rejects jobs"), std::string::npos);
  const auto boxes = window.form().findChildren<QMessageBox*>();
  ASSERT_EQ(boxes.size(), 1);
  boxes.front()->close();
  EXPECT_EQ(window.page(), 1);
  EXPECT_GE(window.firstInk(), 0);
  Dialog::in(window, [](Dialog& dialog) { EXPECT_EQ(dialog.text("txtPrint_Copies"), "3"); });
}

// The view's sheet of 210 mm shrinks to one of 148 mm, whatever zoom is in force; Apply, or another
// view, scales nothing.
TEST(SettingsPrint, scalesToThePaperInTheWideView) {
  for (const int zoom : {6, 8, 12, 13}) {
    SCOPED_TRACE(zoom);
    Window window(withSettings(namedPages(1), {{"ZoomID", zoom}, {"PreviewType", kWideView}}));
    const auto markOf = [&](const char* paper, bool scaled) {
      Dialog::in(window, [&](Dialog& dialog) {
        dialog.goTo(3);
        dialog.choose("lstPageSize", paper);
        if (scaled) dialog.click("chbscaleflag");
        dialog.click("cmdPrint");
      });
      return readPdf(target(window)).word("M").x;
    };
    const double natural = markOf("A4   (210 x 297 mm)", false);
    EXPECT_NEAR(natural, 42 * 25.4 / 12, 1) << "twelve letters of 10 points to the inch";
    EXPECT_NEAR(markOf("A5   (148 x 210 mm)", true) / natural, 148.0 / 210, 0.02);
    EXPECT_EQ(window.doc().PrintScale, 100);
    EXPECT_FALSE(window.doc().PrintScaleFlag);
    EXPECT_NEAR(markOf("A4   (210 x 297 mm)", false) / natural, 210.0 / 148, 0.05) << "as before";
    window.press("cmdView_NormalView");
    EXPECT_NEAR(markOf("A5   (148 x 210 mm)", false), natural, 1);
  }
}

// While pages are printed nobody else changes the document, and the window is closed behind it.
TEST(SettingsPrint, canBeCancelled) {
  Window::Start start = withSettings(longReport());
  start.dynamic = true;
  Window window(start);
  window.form().TimerDynamicBlincTimer();
  std::ofstream(target(window)) << "old";
  bool cancelled = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (progress == nullptr || cancelled) return;
    cancelled = true;
    std::ofstream(Window::path(), std::ios::app) << "More\r\n\f";
    const int pages = window.doc().PageCount;
    window.form().TimerDynamicBlincTimer();
    window.form().ShowPage();
    EXPECT_EQ(window.doc().PageCount, pages);
    EXPECT_EQ(progress->windowTitle(), "Printing");
    window.form().close();
    EXPECT_TRUE(window.form().isVisible());
    QTest::keyClick(progress, Qt::Key_Escape);
  });
  timer.start(10);
  Dialog::in(window, [](Dialog& dialog) { dialog.click("cmdPrint"); });
  EXPECT_TRUE(cancelled);
  EXPECT_FALSE(window.form().isVisible()) << "as it was asked while pages were printed";
  std::string kept;
  std::ifstream(target(window)) >> kept;
  EXPECT_EQ(kept, "old");
  EXPECT_EQ(window.directory().names().size(), 2U);
  EXPECT_EQ(window.status().find("Printed"), std::string::npos);
}

}  // namespace
}  // namespace qor::test
