// What only a real scheduler can show of printing: tickets, sheets of drivers, and its failures.
#include <chrono>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "support/cups_scheduler.h"
#include "support/pdf_reader.h"

namespace qor::test {
namespace {

constexpr const char* kPostScriptDriver = "drv:///sample.drv/generic.ppd";
constexpr const char* kPdfDriver = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";
constexpr const char* kMatrixDriver = "drv:///sample.drv/epson24.ppd";

// The queue; print and page of the settings set; the job as the scheduler saw it, behind the title;
// sheet and left of the text, at the corner of what the printer can reach, in mm.
const std::tuple<std::string, std::string, std::string, std::string, double, double, double>
    kRows[] = {
        {"laser", "<NumOfCopies=\"3\"/>\r\n<SortByCopies=\"1\"/>\r\n<PrintQuality=\"high\"/>",
         "<PaperSize=\"8\"/>\r\n<Orientation=\"2\"/>\r\n<MarginLeft=\"20\"/>",
         "|3|separate-documents-collated-copies|iso_a3_297x420mm|5|monochrome", 420, 297, 24.23},
        {"matrix", "<PrintColor=\"color\"/>\r\n<PrintQuality=\"draft\"/>",
         "<PaperSize=\"0\"/>\r\n<PaperWidth=\"120\"/>\r\n<PaperHeight=\"150\"/>",
         "|2|-|custom_120x150mm_120x150mm|3|color", 120, 150, 6.35},
        {"raw", "", "", "|1|-|iso_a4_210x297mm|4|monochrome", 210, 297, 0},
        {"", "", "", "|1|-|iso_a4_210x297mm|4|monochrome", 210, 297, 6.35}};

// The session's default goes before the system's, and pages lie as they are to be read, whatever
// the queue does with others.
TEST(Cups, getsWhatTheSettingsSay) {
  const CupsScheduler scheduler;
  scheduler.addQueue("laser", kPostScriptDriver);
  scheduler.addQueue("matrix", kMatrixDriver, "copies-default=2");
  scheduler.addQueue("raw", "raw");
  scheduler.addQueue("usual", kPdfDriver, "orientation-requested-default=4");
  scheduler.command({"lpadmin", "-d", "raw"});
  const TemporaryDirectory place;
  place.write("r.txt", "Alpha\r\n\fBeta\r\n");
  Surroundings around = scheduler.surroundings(place);
  around.environment["LPDEST"] = "usual";
  std::set<std::string> jobs;
  for (const auto& [name, print, page, job, width, height, x] : kRows) {
    place.write("s.vset", "<Ver/>\r\n<Set SetName=\"S\">\r\n<Print>\r\n" + print +
                              "\r\n<Print/>\r\n<Page>\r\n" + page + "\r\n<Page/>\r\n<Set/>");
    expectTold(runViewer({"-g", "-f", "r.txt", "-p", name, "-i", "s.vset#S"}, around), "");
    const std::string queue = name.empty() ? "usual" : name;
    jobs.insert(queue + "|QorUtlView, Document" + job);
    const PdfDocument sent = readPdf(scheduler.document(static_cast<int>(jobs.size())));
    EXPECT_EQ(sent.pages, 2);
    EXPECT_EQ(sent.title, "QorUtlView, Document");
    EXPECT_NEAR(sent.width, width, 0.2) << queue;
    EXPECT_NEAR(sent.height, height, 0.2) << queue;
    EXPECT_NEAR(sent.word("Alpha").x, x, 0.3) << queue;
  }
  scheduler.finishJobs();
  EXPECT_EQ(scheduler.jobs(), jobs);
  const PdfWord printed = readPdf(scheduler.output("usual")).word("Beta");
  EXPECT_EQ(printed.page, 2);
  EXPECT_NEAR(printed.x, 6.35, 0.3);
  EXPECT_NEAR(printed.y, readPdf(scheduler.document(4)).word("Beta").y, 0.3);
  EXPECT_FALSE(place.has("r(print).pdf"));
}

// Also where the scheduler dies during the job.
TEST(Cups, saysWhyNothingWasPrinted) {
  CupsScheduler scheduler;
  for (const char* queue : {"stopped", "rejecting", "dying"}) scheduler.addQueue(queue, "raw");
  scheduler.command({"cupsreject", "rejecting"});
  scheduler.command({"cupsdisable", "stopped"});
  for (const auto& [queue, error] : {std::pair{"stopped", "stopped: the printer is stopped"},
                                     {"rejecting", "rejecting: "},
                                     {"missing", "missing: there is no such printer"},
                                     {"dying", "/r.txt: not printed: dying: "}}) {
    SCOPED_TRACE(queue);
    const bool dies = queue == std::string("dying");
    const TemporaryDirectory place;
    std::string report;
    for (int i = 0; i < (dies ? 1000000 : 1); ++i)
      report += "Alpha " + std::to_string(i) + (i % 50 == 49 ? "\r\n\f" : "\r\n");
    place.write("r.txt", report);
    Process printing(viewer({"-g", "-f", "r.txt", "-dd", "-p", queue}),
                     scheduler.surroundings(place));
    // The first pages are there long before the last one is drawn.
    while (dies && scheduler.received() < 100000) {
      ASSERT_TRUE(printing.isRunning());
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (dies) scheduler.kill();
    expectTold(printing.wait(), error);
    EXPECT_FALSE(place.has("r.txt") || place.has("r(print).pdf"));
    EXPECT_TRUE(dies || scheduler.command({"lpstat", "-o"}).starts_with("stopped-"));
  }
}

}  // namespace
}  // namespace qor::test
