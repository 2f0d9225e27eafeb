// The program on a real X server and a real print scheduler, by keys and clicks.
#include <QTest>
#include <set>

#include "platform/print/pdf_file_printer.h"
#include "support/cups_scheduler.h"
#include "support/test.h"
#include "windows/x_server.h"

namespace qor::test {
namespace {

// The texts of some pages; readers have their own order.
std::multiset<std::string> wordsOf(const PdfDocument& document, const std::set<int>& pages) {
  std::multiset<std::string> words;
  for (const PdfWord& word : document.words)
    if (pages.contains(word.page)) words.insert(word.text);
  return words;
}

// Prints pages 2,4-5 in two copies, and saves that as the set "two" before.
void printFromDialog(XServer& server, const Surroundings& around) {
  Process program(viewer({"-f", "ledger.txt"}), around);
  const xcb_window_t window = server.waitForWindow();
  ASSERT_NE(window, XCB_NONE);
  ASSERT_TRUE(server.waitForPage(window));
  server.pointAt(window);
  server.press(0xFFC1);  // F4
  const xcb_window_t dialog = server.waitForWindow(window);
  ASSERT_NE(dialog, XCB_NONE);
  ASSERT_TRUE(server.waitForFocus(dialog));
  for (const auto& [letter, text] :
       {std::pair('i', ""), {'m', "2,4-5"}, {'q', "2"}, {'v', ""}, {'n', "two"}, {'s', ""}}) {
    server.press(static_cast<xcb_keysym_t>(letter), XServer::kAlt);
    QTest::qWait(300);  // a button that is chosen by its letter is down for a moment
    server.type(text);
  }
  server.clickFromCorner(dialog, 137, 22);
  ASSERT_TRUE(server.waitForEnd(dialog));
  server.askToClose(window);
  expectTold(program.wait(), "");
}

TEST(SettingsProgram, printsAndSavesByKeysAndClicks) {
  XServer server;
  const CupsScheduler scheduler;
  scheduler.addQueue("desk", "drv:///sample.drv/generic.ppd");
  scheduler.command({"lpadmin", "-d", "desk"});
  for (const bool onQueue : {false, true}) {
    SCOPED_TRACE(onQueue);
    const TemporaryDirectory place;
    std::filesystem::copy(QOR_SOURCE_DIR "/samples/ledger-866.txt", place.path("ledger.txt"));
    Surroundings around{place.path(), {{"CUPS_SERVER", "/nowhere"}}};
    expectTold(runViewer({"-g", "-f", "ledger.txt", "-p", kPdfFilePrinter}, around), "");
    const PdfDocument whole = readPdf(place.path("ledger(print).pdf"));
    ASSERT_EQ(whole.pages, 13);
    std::filesystem::remove(place.path("ledger(print).pdf"));
    if (onQueue) around = scheduler.surroundings(place);
    Surroundings seen = around;
    seen.environment.merge(XServer::environmentOn(server.display()));
    seen.environment["XDG_CONFIG_HOME"] = place.path("config");
    printFromDialog(server, seen);
    const PdfDocument chosen =
        readPdf(onQueue ? scheduler.document(1) : place.path("ledger(print).pdf"));
    EXPECT_EQ(chosen.pages, 3);
    EXPECT_EQ(wordsOf(chosen, {1, 2, 3}), wordsOf(whole, {2, 4, 5}));
    expectTold(runViewer({"-g", "-f", "ledger.txt", "-i", "QorUtlView.vset#two"}, around),
               onQueue ? "" : "/nowhere: ");
    EXPECT_NE(place.read("QorUtlView.vset").find("PagesForPrint = \"2,4-5\""), std::string::npos);
  }
  EXPECT_EQ(readPdf(scheduler.document(2)).pages, 13) << "a run without a window prints them all";
  scheduler.finishJobs();
  for (const std::string& job : scheduler.jobs())
    EXPECT_EQ(job.find("desk|QorUtlView, Document|2|"), 0U) << job;
  EXPECT_EQ(scheduler.jobs().size(), 1U) << "twice the same";
}

}  // namespace
}  // namespace qor::test
