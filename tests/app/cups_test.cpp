// What only a real scheduler can show of printing: tickets, sheets of drivers, and its failures.
#include <chrono>
#include <thread>

#include "base/run_options.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"
#include "support/cups_scheduler.h"
#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPostScriptDriver = "drv:///sample.drv/generic.ppd";
constexpr const char* kPdfDriver = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";
constexpr const char* kPjlDriver =
    "/usr/share/ppd/cupsfilters/Fuji_Xerox-DocuPrint_CM305_df-PDF.ppd";
constexpr const char* kMatrixDriver = "drv:///sample.drv/epson24.ppd";

// The queue; the settings set; the job as the scheduler saw it, behind the title; sheet and left of
// the text, at the corner of what the printer can reach, in mm.
const std::tuple<std::string, std::string, std::string, double, double, double> kRows[] = {
    {"laser",
     "Print NumOfCopies=3|Print SortByCopies=1|Print PrintQuality=high|Page PaperSize=8|"
     "Page Orientation=2|Page MarginLeft=20",
     "|3|separate-documents-collated-copies|iso_a3_297x420mm|5|monochrome", 420, 297, 24.23},
    {"matrix",
     "Print PrintColor=color|Print PrintQuality=draft|Page PaperSize=0|Page PaperWidth=120|"
     "Page PaperHeight=150",
     "|2|-|custom_120x150mm_120x150mm|3|color", 120, 150, 6.35},
    {"raw", "", "|1|-|iso_a4_210x297mm|4|monochrome", 210, 297, 0},
    {"", "", "|1|-|iso_a4_210x297mm|4|monochrome", 210, 297, 6.35}};

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
  for (const auto& [name, values, job, width, height, x] : kRows) {
    place.write("s.vset", setWith("S", values));
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

// A queue's own default paper doesn't come in between, nor does the tray that the user has chosen
// for all jobs of the queue: it goes with those that name none, or one that isn't there. The marks
// are those of the printers' languages: PCL's tray and paper; PJL's, and the sheet in PDF.
TEST(Cups, takesSheetsFromTheirTray) {
  const CupsScheduler scheduler;
  scheduler.addQueue("pcl", "drv:///sample.drv/laserjet.ppd", "media-default=iso_a3_297x420mm");
  scheduler.addQueue("pjl", kPjlDriver);
  const TemporaryDirectory place;
  place.write("r.txt", "Alpha\r\n");
  fs::create_directory(place.path(".cups"));
  place.write(".cups/lpoptions", "Dest pcl InputSlot=Tray3 AP_D_InputSlot=Tray3\n");
  Surroundings around = scheduler.surroundings(place);
  around.environment["HOME"] = place.path();
  // The queue, the tray and the paper of the set, and the marks.
  const std::tuple<const char*, std::string, std::string, std::vector<std::string>> rows[] = {
      {"pcl", "2", "9", {"\033E\033&l1H", "\033&l26A"}},
      {"pcl", "4", "1", {"\033E\033&l2H", "\033&l2A"}},
      {"pcl", "15", "9", {"\033E\033&l4H", "\033&l26A"}},
      {"pcl", "11", "9", {"\033E\033&l4H", "\033&l26A"}},
      {"pjl", "20011", "11", {"MEDIASOURCE=TRAY2", "PAPER=A5", "[ 0 0 420 595 ]"}},
      {"pjl", "15", "11", {"MEDIASOURCE=AUTO", "PAPER=A5", "[ 0 0 420 595 ]"}}};
  for (const auto& [queue, tray, paper, marks] : rows) {
    SCOPED_TRACE(std::string(queue) + tray);
    place.write("s.vset", setWith("S", "Print PaperSource=" + tray + "|Page PaperSize=" + paper));
    expectTold(runViewer({"-g", "-f", "r.txt", "-p", queue, "-i", "s.vset#S"}, around), "");
    scheduler.finishJobs();
    const std::string arrived = readFile(scheduler.output(queue));
    for (const std::string& mark : marks) EXPECT_NE(arrived.find(mark), std::string::npos) << mark;
  }
}

// A scheduler that isn't there, one that takes connections and never answers, and none at all: a
// run ends all the same, and says what became of its pages.
TEST(Cups, isToldOfWhereItCantBeAsked) {
  const Port mute;
  const std::string dead = Port().number();
  // The server, and the reason.
  const std::tuple<std::string, const char*> rows[] = {
      {"/nowhere", "/nowhere: "},
      {"127.0.0.1:" + dead, "127.0.0.1: "},
      {"127.0.0.1:" + mute.number(), "127.0.0.1: no answer in 5 seconds"}};
  for (const auto& [server, reason] : rows) {
    SCOPED_TRACE(server);
    const TemporaryDirectory place;
    place.write("r.txt", "Alpha\r\n");
    const std::string trouble = ": the print system can't be asked (" + std::string(reason);
    const Surroundings around = {place.path(), {{"CUPS_SERVER", server}}, 0};
    const Outcome byDefault = runViewer({"-g", "-f", "r.txt"}, around);
    expectTold(byDefault, place.path("r.txt") + trouble);
    EXPECT_TRUE(
        byDefault.errors.ends_with("), the pages go to " + place.path("r(print).pdf") + "\n"));
    EXPECT_EQ(readPdf(place.path("r(print).pdf")).word("Alpha").page, 1);
    fs::remove(place.path("r(print).pdf"));
    expectTold(runViewer({"-g", "-f", "r.txt", "-p", "queue"}, around), "queue" + trouble);
    EXPECT_FALSE(place.has("r(print).pdf"));
    expectTold(runViewer({"-g", "-f", "r.txt", "-p", kPdfFilePrinter}, around), "");
    EXPECT_TRUE(place.has("r(print).pdf"));
  }
}

// A scheduler that answers has no printers, or none that is the default one.
TEST(Cups, isNoTroubleWhereItHasNoPrinters) {
  const CupsScheduler scheduler;
  const TemporaryDirectory place;
  place.write("r.txt", "Alpha\r\n");
  expectTold(runViewer({"-g", "-f", "r.txt"}, scheduler.surroundings(place)), "");
  EXPECT_TRUE(place.has("r(print).pdf"));
}

// The printer that makes files needs nothing of CUPS, not even its library.
TEST(Cups, isNotLoadedForTheFilePrinter) {
  const TemporaryDirectory place;
  place.write("r.txt", "Alpha\r\n");
  for (const auto& [printer, loaded] :
       {std::pair{"microsoft print to pdf", false}, {"other", true}}) {
    Surroundings around = in(place);
    around.environment["LD_DEBUG"] = "files";
    const Outcome outcome = runViewer({"-g", "-f", "r.txt", "-p", printer}, around);
    EXPECT_EQ(outcome.errors.find("libcups") != std::string::npos, loaded) << printer;
  }
}

// In the process: nobody stops a run without a window.
TEST(Cups, takesBackAJobThatIsStopped) {
  const CupsScheduler scheduler;
  scheduler.addQueue("usual", kPdfDriver);
  TestReport report("A\r\n\fB\r\n\fC\r\n");
  const TemporaryDirectory place;
  const Variable server("CUPS_SERVER",
                        scheduler.surroundings(place).environment.at("CUPS_SERVER").c_str());
  const auto print = [&report](std::int32_t wanted) {
    setPrintSystem(nullptr);
    RunOptions run = runOptions();
    run.printer = "usual";
    const PrintOutcome outcome = report.doc().PrintAll(
        run, [wanted](std::int32_t page, std::int32_t) { return page != wanted; });
    setPrintSystem(nullptr);
    EXPECT_EQ(outcome.end, wanted < 3 ? PrintOutcome::End::stopped : PrintOutcome::End::printed);
    EXPECT_EQ(outcome.notice + outcome.file, "");
  };
  // What a thread asks of CUPS first decides where its scheduler is.
  std::thread([&print] { print(2); }).join();
  scheduler.finishJobs();
  EXPECT_EQ(scheduler.jobs(), std::set<std::string>());
  EXPECT_FALSE(fs::exists(scheduler.output("usual")));
  EXPECT_TRUE(scheduler.command({"lpstat", "-W", "completed", "-o"}).starts_with("usual-1 "));
  std::thread([&print] { print(9); }).join();
  scheduler.finishJobs();
  EXPECT_EQ(readPdf(scheduler.output("usual")).pages, 3);
}

}  // namespace
}  // namespace qor::test
