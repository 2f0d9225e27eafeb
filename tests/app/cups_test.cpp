// Printing through a real scheduler, read back from what arrived.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "support/cups_scheduler.h"
#include "support/pdf_reader.h"

namespace qor::test {
namespace {

constexpr const char* kPdfDriver = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";
constexpr const char* kPostScriptDriver = "drv:///sample.drv/generic.ppd";
constexpr const char* kMatrixDriver = "drv:///sample.drv/epson24.ppd";

std::string report(int pages) {
  std::string text;
  for (int page = 1; page <= pages; ++page) {
    for (int line = 0; line < 50; ++line) text += "Alpha Beta " + std::to_string(page) + "\r\n";
    text += "\f";
  }
  return text;
}

Outcome print(const CupsScheduler& scheduler, const TemporaryDirectory& place,
              std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"-g", "-f", "r.txt"});
  return runViewer(arguments, scheduler.surroundings(place));
}

void expectDone(const Outcome& outcome) {
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.errors, "");
}

TEST(Cups, printsOnEveryKindOfQueue) {
  CupsScheduler scheduler;
  // Pages lie as they are to be read, whatever the queue does with others.
  scheduler.addQueue("pdf", kPdfDriver, {"orientation-requested-default=4"});
  scheduler.addQueue("postscript", kPostScriptDriver);
  scheduler.addQueue("matrix", kMatrixDriver);
  scheduler.addQueue("raw", "raw");
  const TemporaryDirectory place;
  place.write("r.txt", report(3));
  const std::vector<std::string> queues = {"pdf", "postscript", "matrix", "raw"};
  for (const std::string& queue : queues) expectDone(print(scheduler, place, {"-p", queue}));
  scheduler.finishJobs();
  const std::string options = "|QorUtlView, Document|1|-|iso_a4_210x297mm|4|monochrome";
  EXPECT_EQ(scheduler.jobs(), (std::vector<std::string>{"matrix" + options, "pdf" + options,
                                                        "postscript" + options, "raw" + options}));

  // What each printer got: text at the corner of its printable area, on its own sheet.
  const PdfDocument printed = readPdf(scheduler.output("pdf"));
  EXPECT_EQ(printed.pages, 3);
  EXPECT_NEAR(printed.width, 210, 0.5);
  EXPECT_NEAR(printed.height, 297, 0.5);
  const PdfDocument sent = readPdf(scheduler.document(1));
  EXPECT_NEAR(printed.word("Alpha").x, sent.word("Alpha").x, 0.3);
  EXPECT_NEAR(printed.word("Alpha").y, sent.word("Alpha").y, 0.3);
  EXPECT_NEAR(readPdf(scheduler.document(2)).word("Alpha").x, 4.23, 0.3);
  EXPECT_NEAR(readPdf(scheduler.document(3)).word("Alpha").x, 6.35, 0.3);
  EXPECT_EQ(readPdf(scheduler.document(4)).title, "QorUtlView, Document");
  EXPECT_NEAR(readPdf(scheduler.document(4)).word("Alpha").x, 0, 0.3);
  const std::string postscript = readFile(scheduler.output("postscript"));
  EXPECT_TRUE(postscript.starts_with("%!PS"));
  EXPECT_NE(postscript.find("%%Pages: 3"), std::string::npos);
  EXPECT_GT(std::filesystem::file_size(scheduler.output("matrix")), 10000U);
}

TEST(Cups, sendsWhatTheSettingsSay) {
  CupsScheduler scheduler;
  scheduler.addQueue("laser", kPostScriptDriver);
  scheduler.addQueue("matrix", kMatrixDriver, {"copies-default=2"});
  const TemporaryDirectory place;
  place.write("r.txt", report(1));
  const auto printWith = [&](const std::string& name, const std::string& options,
                             const std::string& page) {
    place.write("s.vset", "<Ver/>\r\n<Set SetName=\"" + name + "\">\r\n<Print>\r\n" + options +
                              "\r\n<Print/>\r\n<Page>\r\n" + page + "\r\n<Page/>\r\n<Set/>\r\n");
    expectDone(print(scheduler, place, {"-p", name, "-i", "s.vset#" + name}));
  };
  printWith("laser", "<NumOfCopies=\"3\"/>\r\n<SortByCopies=\"1\"/>\r\n<PrintQuality=\"high\"/>",
            "<PaperSize=\"8\"/>\r\n<Orientation=\"2\"/>\r\n<MarginLeft=\"20\"/>");
  printWith("matrix", "<PrintColor=\"color\"/>\r\n<PrintQuality=\"draft\"/>",
            "<PaperSize=\"0\"/>\r\n<PaperWidth=\"120\"/>\r\n<PaperHeight=\"150\"/>");
  scheduler.finishJobs();
  EXPECT_EQ(scheduler.jobs(),
            (std::vector<std::string>{
                "laser|QorUtlView, Document|3|separate-documents-collated-copies|"
                "iso_a3_297x420mm|5|monochrome",
                "matrix|QorUtlView, Document|2|-|custom_120x150mm_120x150mm|3|color"}));
  const PdfDocument across = readPdf(scheduler.document(1));
  EXPECT_NEAR(across.width, 420, 0.2);
  EXPECT_NEAR(across.height, 297, 0.2);
  const PdfDocument small = readPdf(scheduler.document(2));
  EXPECT_NEAR(small.width, 120, 0.2);
  EXPECT_NEAR(small.height, 150, 0.2);
}

TEST(Cups, takesTheDefaultOfTheSessionBeforeThatOfTheSystem) {
  CupsScheduler scheduler;
  scheduler.addQueue("first", "raw");
  scheduler.addQueue("second", "raw");
  scheduler.command({"lpadmin", "-d", "first"});
  const TemporaryDirectory place;
  place.write("r.txt", report(1));
  Surroundings around = scheduler.surroundings(place);
  expectDone(runViewer({"-g", "-f", "r.txt"}, around));
  around.environment["LPDEST"] = "second";
  expectDone(runViewer({"-g", "-f", "r.txt"}, around));
  scheduler.finishJobs();
  const auto jobs = scheduler.jobs();
  ASSERT_EQ(jobs.size(), 2U);
  EXPECT_TRUE(jobs[0].starts_with("first|"));
  EXPECT_TRUE(jobs[1].starts_with("second|"));
  EXPECT_FALSE(place.has("r(print).pdf"));
}

TEST(Cups, saysWhyNothingWasPrinted) {
  CupsScheduler scheduler("LimitRequestBody 20k\n");
  scheduler.addQueue("full", kPdfDriver);
  scheduler.addQueue("rejecting", kPdfDriver);
  scheduler.addQueue("stopped", kPdfDriver);
  scheduler.command({"cupsreject", "rejecting"});
  scheduler.command({"cupsdisable", "stopped"});
  struct Row {
    const char* queue;
    int pages;
    const char* error;
  };
  for (const Row& row : {Row{"full", 300, "full: "}, Row{"rejecting", 1, "rejecting: "},
                         Row{"stopped", 1, "stopped: the printer is stopped"},
                         Row{"missing", 1, "missing: there is no such printer"}}) {
    SCOPED_TRACE(row.queue);
    const TemporaryDirectory place;
    place.write("r.txt", report(row.pages));
    const Outcome outcome = print(scheduler, place, {"-dd", "-p", row.queue});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_NE(outcome.errors.find(row.error), std::string::npos) << outcome.errors;
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
    EXPECT_FALSE(place.has("r.txt"));
    EXPECT_FALSE(place.has("r(print).pdf"));
  }
  EXPECT_EQ(scheduler.command({"lpstat", "-o"}).find("stopped-"), 0U);
}

TEST(Cups, outlivesASchedulerThatDiesDuringTheJob) {
  CupsScheduler scheduler;
  scheduler.addQueue("pdf", kPdfDriver);
  const TemporaryDirectory place;
  place.write("r.txt", report(20000));
  Process printing(viewer({"-g", "-f", "r.txt", "-dd", "-p", "pdf"}),
                   scheduler.surroundings(place));
  // The first pages are there long before the last one is drawn.
  while (scheduler.received() < 100000) {
    ASSERT_TRUE(printing.isRunning());
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  scheduler.kill();
  const Outcome outcome = printing.wait();
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.signal, 0);
  EXPECT_NE(outcome.errors.find("/r.txt: not printed: pdf: "), std::string::npos) << outcome.errors;
  EXPECT_FALSE(place.has("r.txt"));
}

}  // namespace
}  // namespace qor::test
