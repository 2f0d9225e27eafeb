// Printing with no window on the printer that makes PDF files, read back from its files.
#include <cmath>

#include "base/run_options.h"
#include "platform/print/pdf_file_printer.h"
#include "settings/printers.h"
#include "support/page_picture.h"
#include "support/paper.h"
#include "support/print_system_of.h"
#include "support/samples.h"
#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

// What asks no print system.
const std::vector<std::string> kToFile = {"-g", "-p", kPdfFilePrinter};

std::vector<std::string> with(const std::vector<std::string>& options, const std::string& more) {
  return joined(options, wordsOf(more));
}

constexpr double kMillimetre = 0.2;  // tolerance: a dot of the printer and the reader's rounding

// What the report leaves, besides the set file, and what is told. "_" stands for a blank.
TEST(Print, endsAsEachRunShould) {
  const char* bad = "A\r\n<barcode value=12345678901 br_type=UPCE right=50 bottom=9/>\r\n";
  // The options, the report, the message, what is left, and a limit for the sizes of files.
  const std::tuple<std::string, const char*, std::string, std::string, unsigned long> rows[] = {
      {"-dynamic -g", "A", "r.b.txt: the print system can't be asked (/nowhere: ",
       "r.b(print).pdf r.b.txt r.b_1.jpeg ", 0},
      {"-g -p MICROSOFT_print_to_PDF", "A", "", "r.b(print).pdf r.b.txt r.b_1.jpeg ", 0},
      {"-g -dd -p MICROSOFT_print_to_PDF", "A", "", "r.b(print).pdf ", 0},
      {"-g -dd -p nobody", "A", "nobody: the print system can't be asked (/nowhere: ", "", 0},
      {"-g -p ../a_b/\"#", "A", "../a b/", "r.b.txt r.b_1.jpeg ", 0},
      {"-g -dd", "", "r.b.txt: the report has no pages", "r.b.txt r.b_1.jpeg ", 0},
      {"-g -dd -p MICROSOFT_print_to_PDF", bad,
       "r.b.txt: page 1: barcode \"12345678901\": ", "r.b(print).pdf ", 0},
      {"-g -dd", "A", "r.b(print).pdf", "r.b.txt r.b_1.jpeg ", 2048},
      {"-g -dd -i QorUtlView.vset#S", "A", "many", "r.b.txt r.b_1.jpeg ", 0}};
  for (const auto& [options, report, error, left, limit] : rows) {
    SCOPED_TRACE(options);
    const TemporaryDirectory place;
    place.write("r.b.txt", report);
    place.write("r.b_1.jpeg", "side");
    place.write("r_mail.tmp", "r_mail.tmp\r\n");
    place.write("QorUtlView.vset", setWith("S", "Print NumOfCopies=many"));
    auto arguments = wordsOf("-f r.b.txt " + options);
    for (auto& option : arguments) std::ranges::replace(option, '_', ' ');
    expectTold(runViewer(arguments, {place.path(), {}, limit}), error, error == "many" ? 254 : 0);
    EXPECT_EQ(place.names(), wordsOf("QorUtlView.vset " + left + "r_mail.tmp"));
  }
}

TEST(Print, keepsTextTitleAndPages) {
  const TemporaryDirectory place;
  expectTold(runViewer({"-g", "-dd"}, in(place)), "File for print not selected.", 255);
  // Two of the letters are none that a text may hold.
  place.write("cp1253.ini", "128-0xFFFF\r\n129-0xD800\r\n130-0x416\r\n");
  place.write("r.txt", "\x82\x80\x81 world\r\n\fzweite\r\n\f\fvierte Seite");
  expectTold(runViewer(with(kToFile, "-f r.txt -codepage 1253"),
                       {place.path(), {{"QOR_ANSI_CODEPAGE", "1251"}}, 0}),
             "");
  const PdfDocument document = readPdf(place.path("r(print).pdf"));
  EXPECT_EQ(document.pages, 4);
  EXPECT_EQ(document.title, "QorUtlView, Документ");
  EXPECT_EQ(document.word("zweite").page, 2);
  EXPECT_EQ(document.word("Seite").page, 4);
  EXPECT_EQ(document.words.front().text.substr(0, 2), "Ж");
}

// The sheet of a picture is the same.
TEST(Print, followsTheSettingsSet) {
  constexpr double kCells = 2 * 10 * 0.6001 * 25.4 / 72;  // before "B", in mm
  // The values, the sheet, and the place of "B", in mm.
  const std::tuple<std::string, double, double, double, double> rows[] = {
      {"", 210, 297, kCells, 0},
      {"Page PaperSize=1|Page Orientation=2", 279.4, 215.9, kCells, 0},
      {"Page MarginLeft=20|Page MarginTop=30", 210, 297, 20 + kCells, 30},
      {"Font Height=20|Font Name=Courier New", 210, 297, 2 * kCells, 0},
      {"Page PaperSize=0|Page PaperWidth=100,5|Page PaperHeight=50", 100.5, 50, kCells, 0},
      {"Page PaperSize=0|Page PaperWidth=200|Page PaperHeight=80|Page Orientation=2", 200, 80,
       kCells, 0},
      {"Page PaperSize=0|Page PaperWidth=80|Page PaperHeight=200|Page Orientation=2", 80, 200,
       kCells, 0},
      {"Page PaperSize=256|Page PaperWidth=100", 100, 297, kCells, 0},
      {"Page PaperSize=117", 210, 297, kCells, 0},
      {"Page PaperWidth=297|Page PaperHeight=210|Page Orientation=7", 297, 210, kCells, 0},
      {"Page PaperWidth=297|Page PaperHeight=210", 210, 297, kCells, 0},
      {"Page Orientation=0", 210, 297, kCells, 0},
      {"Page PaperSize=8", 297, 420, kCells, 0},
      {"Page PaperSize=4|Page PaperWidth=432|Page PaperHeight=279", 432, 279, kCells, 0},
      {"Page PaperSize=4|Page PaperWidth=432|Page PaperHeight=279|Page Orientation=2", 279, 432,
       kCells, 0},
      {"Page PaperSize=4711|Page PaperWidth=123|Page PaperHeight=45", 123, 45, kCells, 0}};
  for (const auto& [values, width, height, x, y] : rows) {
    SCOPED_TRACE(values);
    const TemporaryDirectory place;
    place.write("r.txt", "A B\r\n");
    place.write("s.vset", setWith("Name", values));
    for (const auto& way : {kToFile, {"-export", "o.png"}})
      expectTold(runViewer(with(way, "-f r.txt -i s.vset#Name"), in(place)), "");
    const auto picture = decodePicture(place.read("o.png")).value();
    EXPECT_NEAR(picture.width * 25.4 / 96, width, 0.5);
    EXPECT_NEAR(picture.height * 25.4 / 96, height, 0.5);
    const PdfDocument document = readPdf(place.path("r(print).pdf"));
    EXPECT_NEAR(document.width, width, 0.5);
    EXPECT_NEAR(document.height, height, 0.5);
    const PdfWord word = document.word("B");
    EXPECT_EQ(word.page, 1);
    EXPECT_NEAR(word.x, x, kMillimetre);
    EXPECT_NEAR(word.y, y, 1);  // the reader's boxes start at its own idea of an ascent
  }
}

// The command line's, a set's, or a memory of earlier runs. Byte 0xE0 is "а" in 1251, "р" in 866,
// "à" in 1254 and 28591, "ŕ" in 1250; byte 0xE4 "ה" in 1255.
TEST(Print, readsItsReportInACodePage) {
  // The options, with "*" where the default set remembers 866, and the letter.
  for (const auto& [row, letter] :
       rowsOf(" => а|-codepage 866 => р|* => р|-codepage 1254* => à|-codepage x* => р|"
              "-codepage 1254 -i s.vset#S* => ŕ|-codepage 1254 -i s.vset#none* => à|"
              "-codepage 28591 => à|-codepage 1255 => א",
              " => ")) {
    const std::string options = row.substr(0, row.find('*'));
    SCOPED_TRACE(row);
    const TemporaryDirectory place;
    place.write("r.txt", "x\xE0x\r\n");
    place.write("s.vset", setWith("S", "Page BaseCodePage=1250"));
    if (row != options) place.write("QorUtlView.vset", setWith("Default", "Page BaseCodePage=866"));
    expectTold(runViewer(with(kToFile, "-f r.txt " + options),
                         {place.path(), {{"QOR_ANSI_CODEPAGE", "1251"}}, 0}),
               "");
    EXPECT_EQ(readPdf(place.path("r(print).pdf")).words.at(0).text, "x" + letter + "x");
  }
  // What nobody knows is not remembered: it would fail each later run, too.
  const TemporaryDirectory place;
  place.write("r.txt", "x\r\n");
  expectTold(runViewer({"-g", "-dd", "-f", "r.txt", "-codepage", "99999"}, in(place)),
             place.path("r.txt") + ": code page 99999: ", 254);
  expectTold(runViewer(with(kToFile, "-f r.txt"), in(place)), "");
  EXPECT_TRUE(place.has("r(print).pdf"));
}

// In the process: no command line asks for scales, single pages or lists of them.
class PrintJobs : public testing::Test {
 protected:
  PrintJobs() : report_("<h1>A\r\n\fB<w1>\r\n\fCC C\r\n\fDD D\r\n") {
    InitPrinters();
    AppOptions.PrinterName = "";
    report_.doc().Settings.Page.MarginLeft = 20;
    report_.doc().Settings.Page.MarginTop = 40;
  }

  // Such as "1A@20 2B@20 ", with tenths of a millimetre, and the title. Nothing that was read
  // before is known.
  std::string printed(const std::function<void(VDoc&)>& print) {
    report_.doc().ForgetFonts();
    print(report_.doc());
    const PdfDocument document = readPdf(report_.path("report(print).pdf"));
    std::string words;
    for (const PdfWord& word : document.words) {
      words += std::to_string(word.page) + word.text + "@" +
               std::to_string(std::lround(word.x * 10)) + " ";
    }
    return words + document.title;
  }

  const PrintSystemOf system_{makePdfFilePrinter()};
  TestReport report_;
};

TEST_F(PrintJobs, areScaledOnEveryPage) {
  report_.doc().PrintScale = 50;
  report_.doc().PrintScaleFlag = true;
  report_.doc().PrintToFile(runOptions(), report_.path("half.pdf"));
  const PdfDocument document = readPdf(report_.path("half.pdf"));
  ASSERT_EQ(document.words.size(), 6U);
  for (const char* word : {"A", "B", "CC", "DD"}) {
    EXPECT_NEAR(document.word(word).x, 10, kMillimetre) << word;
    EXPECT_NEAR(document.word(word).y, 20, 1) << word;
  }
  EXPECT_NEAR(document.width, 210, kMillimetre);
  EXPECT_EQ(gPrintMetrics.LogPixelsX, 600);
  EXPECT_FALSE(std::filesystem::exists(report_.path("report(print).pdf")));
}

// Characters are 10.16 mm wide from the third page on, whatever was read before it.
TEST_F(PrintJobs, takeThePagesThatAreAskedFor) {
  EXPECT_EQ(printed([](VDoc& doc) { doc.PrintAll(runOptions()); }),
            "1A@200 2B@200 3CC@200 3C@505 4DD@200 4D@505 QorUtlView, Document");
  EXPECT_EQ(printed([](VDoc& doc) { doc.PrintPage(runOptions(), 3); }),
            "1CC@200 1C@505 QorUtlView, page: 3");
  report_.doc().Settings.Page.PagesForPrint = "2,4";
  EXPECT_EQ(printed([](VDoc& doc) { doc.PrintSelected(runOptions()); }),
            "1B@200 2DD@200 2D@505 QorUtlView, Document");
  report_.doc().Settings.Page.PagesForPrint = "2,x";
  EXPECT_THROW(report_.doc().PrintSelected(runOptions()), ConversionError);
}

TEST_F(PrintJobs, goOutBackwardsWhereTheSettingsSaySo) {
  report_.doc().Settings.Page.ReverseOrder = true;
  EXPECT_EQ(printed([](VDoc& doc) { doc.PrintAll(runOptions()); }),
            "1DD@200 1D@505 2CC@200 2C@505 3B@200 4A@200 QorUtlView, Document");
  EXPECT_EQ(printed([this](VDoc& doc) {
              doc.PrintToFile(runOptions(), report_.path("report(print).pdf"));
            }),
            "1DD@200 1D@505 2CC@200 2C@505 3B@200 4A@200 QorUtlView, Document");
  report_.doc().Settings.Page.PagesForPrint = "2,4";
  EXPECT_EQ(printed([](VDoc& doc) { doc.PrintSelected(runOptions()); }),
            "1DD@200 1D@505 2B@200 QorUtlView, Document");
}

// What is told behind each page: how many of how many. Two of three pages are let pass.
TEST_F(PrintJobs, stopBehindAPage) {
  report_.doc().Settings.Page.PagesForPrint = "2-4";
  const auto print = [this](std::int32_t wanted, PrintOutcome::End end) {
    std::string told;
    const PrintOutcome outcome =
        report_.doc().PrintSelected(runOptions(), [&](std::int32_t page, std::int32_t pages) {
          told += std::to_string(page) + "/" + std::to_string(pages) + " ";
          return page < wanted;
        });
    EXPECT_EQ(outcome.end, end);
    return told + outcome.notice + outcome.file;
  };
  const std::string file = report_.path("report(print).pdf");
  EXPECT_EQ(print(2, PrintOutcome::End::stopped), "1/3 2/3 ");
  EXPECT_EQ(report_.names(), std::vector<std::string>{"report.txt"});
  EXPECT_EQ(print(9, PrintOutcome::End::printed), "1/3 2/3 3/3 " + file);
  const std::string whole = readFile(file);
  EXPECT_EQ(print(3, PrintOutcome::End::stopped), "1/3 2/3 3/3 ");
  EXPECT_EQ(readFile(file), whole);
  EXPECT_EQ(report_.names(), (std::vector<std::string>{"report(print).pdf", "report.txt"}));
}

// Queues that differ in what they do with a job, and count the streams that have come.
class MoodyQueues : public PrintQueues {
 public:
  explicit MoodyQueues(std::size_t& streams) : streams_(streams) {}

  std::vector<QueueName> list() override { return {}; }
  std::string defaultName() override { return "waits"; }

  std::optional<Queue> find(const std::string& name) override {
    if (name == "nobody") return std::nullopt;
    Queue queue;
    queue.id.name = name;
    queue.stopped = name == "waits";
    return queue;
  }

  std::unique_ptr<PrintJob> open(const std::string& name, const JobTicket&) override {
    if (name == "closed") throw PrintError("closed: no");
    return std::make_unique<Job>(name == "full", streams_);
  }

 private:
  struct Job : PrintJob {
    Job(bool refuses, std::size_t& streams) : refuses_(refuses), streams_(streams) {}
    void write(std::string_view bytes) override { streams_ += countOf("endstream", bytes); }
    void finish() override {
      if (refuses_) throw PrintError("full: no");
    }
    bool refuses_;
    std::size_t& streams_;
  };

  std::size_t& streams_;
};

TEST(Print, saysWhatBecameOfAJob) {
  using enum PrintOutcome::End;
  // The printer, the pages, the end, and the notice without the name of the report.
  const std::tuple<const char*, const char*, PrintOutcome::End, bool, std::string> rows[] = {
      {"", "1", printed, false, "waits: the printer is stopped, the job waits for it"},
      {"goes", "1", printed, false, ""},
      {"nobody", "1", noPrinter, false, "nobody: there is no such printer"},
      {"closed", "1", refused, false, ": not printed: closed: no"},
      {"full", "1", refused, false, ": not printed: full: no"},
      {"waits", "3", noPages, true, ": none of the report's pages is chosen"},
      {kPdfFilePrinter, "1", fileLost, true, ": not printed: /lost/x: Not a directory"}};
  TestReport report("A\r\n\fB\r\n");
  std::size_t streams = 0;
  const PrintSystemOf system(std::make_unique<MoodyQueues>(streams));
  const auto expect = [](const PrintOutcome& outcome, PrintOutcome::End end, bool nothing,
                         const std::string& notice) {
    EXPECT_EQ(outcome.end, end) << notice;
    EXPECT_EQ(outcome.cameToNothing(), nothing) << notice;
    EXPECT_EQ(without(AppOptions.FileName, outcome.notice), notice);
    EXPECT_EQ(outcome.file, "");
  };
  RunOptions run = runOptions();
  for (const auto& [printer, pages, end, nothing, notice] : rows) {
    run.printer = printer;
    report.doc().Settings.Page.PagesForPrint = pages;
    expect(end == fileLost ? report.doc().PrintToFile(run, run.report + "/lost/x")
                           : report.doc().PrintSelected(run),
           end, nothing, notice);
  }
  expect(report.doc().PrintPage(run, 3), noPages, true, ": none of the report's pages is chosen");
  TestReport empty("");
  run.report = AppOptions.FileName;
  expect(empty.doc().PrintAll(run), noPages, true, ": the report has no pages");
}

// A scheduler may start with the first page while the second one is drawn.
TEST(Print, sendsEachPageWhenItIsDrawn) {
  TestReport report("A\r\n\fB\r\n\fC\r\n");
  std::size_t streams = 0;
  const PrintSystemOf system(std::make_unique<MoodyQueues>(streams));
  report.doc().PrintAll(runOptions(), [&](std::int32_t page, std::int32_t) {
    EXPECT_EQ(streams, static_cast<std::size_t>(page));
    return true;
  });
  EXPECT_GT(streams, 3U);
}

TEST(Print, standsWhereThePictureStands) {
  for (const auto& [report, codePage] : samples()) {
    SCOPED_TRACE(report);
    const TemporaryDirectory place;
    fs::copy(kSamples, place.path(), fs::copy_options::recursive);
    // Somebody may have looked at the samples where they stand.
    fs::remove(place.path("QorUtlView.vset"));
    const std::string bytes = place.read(report);
    const Picture shown = pageBy(Road::picture, place, bytes, codePage);
    const Picture paper = pageBy(Road::print, place, bytes, codePage);
    EXPECT_NEAR(shown.width, paper.width, 2);
    EXPECT_NEAR(shown.height, paper.height, 2);
    EXPECT_NE(inkBox(shown).right, 0);
    // Hinted strokes are a dot nearer to or farther from each other.
    EXPECT_LT(strangers(shown, paper, 200), 50);
    EXPECT_LT(strangers(paper, shown, 200), 50);
  }
}

}  // namespace
}  // namespace qor::test
