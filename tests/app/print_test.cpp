// Printing with no window on the printer that makes PDF files, read back from its files.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"
#include "settings/printers.h"
#include "support/page_picture.h"
#include "support/pdf_reader.h"
#include "support/program.h"
#include "support/report_reader.h"
#include "support/rows.h"
#include "support/temporary_directory.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

constexpr double kMillimetre = 0.2;  // tolerance: a dot of the printer and the reader's rounding

TEST(Print, endsAsEachRunShould) {
  struct Row {
    const char* options;
    const char* report;
    int exitCode;
    const char* error;  // part of the only line on standard error, empty for silence
    const char* left;   // besides the set file
    unsigned long fileSizeLimit = 0;
  };
  const char* bad = "A\r\n<barcode value=12345678901 br_type=UPCE right=50 bottom=9/>\r\n";
  const Row rows[] = {
      {"-g", "A\r\n", 0, "", "r.b(print).pdf r.b.txt r.b_1.jpeg "},
      {"-g -p MICROSOFT_print_to_PDF", "A\r\n", 0, "", "r.b(print).pdf r.b.txt r.b_1.jpeg "},
      {"-g -dd", "A\r\n", 0, "", "r.b(print).pdf "},
      {"-g -dd -p nobody", "A\r\n", 0, "nobody", ""},
      {"-g -p ../a_b/\"#", "A\r\n", 0, "../a b/", "r.b.txt r.b_1.jpeg "},
      {"-g -dd", "", 0, "r.b.txt: the report has no pages", "r.b.txt r.b_1.jpeg "},
      {"-g -dd", bad, 0, "r.b.txt: page 1: barcode \"12345678901\": ", "r.b(print).pdf "},
      {"-g -dd", "A\r\n", 0, "r.b(print).pdf", "r.b.txt r.b_1.jpeg ", 2048},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.options);
    const TemporaryDirectory place;
    place.write("r.b.txt", row.report);
    place.write("r.b_1.jpeg", "side");
    std::vector<std::string> arguments = {"-f", "r.b.txt"};
    std::istringstream options(row.options);
    for (std::string option; options >> option;) {
      std::replace(option.begin(), option.end(), '_', ' ');
      arguments.push_back(option);
    }
    const Outcome outcome = runViewer(arguments, {place.path(), {}, row.fileSizeLimit});
    EXPECT_EQ(outcome.exitCode, row.exitCode);
    EXPECT_EQ(outcome.signal, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_NE(outcome.errors.find(row.error), std::string::npos) << outcome.errors;
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'),
              *row.error != '\0' ? 1 : 0);
    std::string left;
    for (const std::string& name : place.names()) left += name + " ";
    EXPECT_EQ(left, "QorUtlView.vset " + std::string(row.left));
  }
}

TEST(Print, withoutReportSaysSo) {
  const TemporaryDirectory place;
  const Outcome outcome = runViewer({"-g", "-dd"}, in(place));
  EXPECT_EQ(outcome.exitCode, 255);
  EXPECT_EQ(outcome.errors, "File for print not selected.\n");
}

TEST(Print, keepsTextTitleAndPages) {
  const TemporaryDirectory place;
  place.write("r.txt", "\x8F\xE0\xA8\xA2\xA5\xE2 world\r\n\fzweite\r\n\f\fvierte Seite");
  const Outcome outcome = runViewer({"-g", "-f", "r.txt", "-codepage", "866"},
                                    {place.path(), {{"QOR_ANSI_CODEPAGE", "1251"}}, 0});
  EXPECT_EQ(outcome.errors, "");
  const PdfDocument document = readPdf(place.path("r(print).pdf"));
  EXPECT_EQ(document.pages, 4);
  EXPECT_EQ(document.title, "QorUtlView, Документ");
  std::string text;
  for (const PdfWord& word : document.words) text += std::to_string(word.page) + word.text + " ";
  EXPECT_EQ(text, "1Привет 1world 2zweite 4vierte 4Seite ");
}

TEST(Print, goesOnBehindCharactersThatNoTextMayHold) {
  const TemporaryDirectory place;
  place.write("cp1253.ini", "128-0xFFFF\r\n129-0xD800\r\n130-0x0391\r\n");
  place.write("r.txt", "before\r\nodd \x80\x81\x82\r\nafter\r\n\fnext\r\n");
  EXPECT_EQ(runViewer({"-g", "-f", "r.txt", "-codepage", "1253"}, in(place)).errors, "");
  const PdfDocument document = readPdf(place.path("r(print).pdf"));
  EXPECT_EQ(document.word("after").page, 1);
  EXPECT_EQ(document.word("next").page, 2);
}

// A set of "Section Key=value" rows.
std::string setWith(const std::string& values) {
  std::string set = "<ReportSetsIniFile Ver=\"1.0\"/>\r\n<Set SetName=\"Name\">\r\n";
  for (const auto& [section, pair] : rowsOf(values)) {
    const auto equals = pair.find('=');
    set.append("<" + section + ">\r\n<" + pair.substr(0, equals) + " = \"");
    set.append(pair.substr(equals + 1) + "\"/>\r\n<" + section + "/>\r\n");
  }
  return set + "<Set/>\r\n";
}

TEST(Print, followsTheSettingsSet) {
  struct Row {
    const char* values;
    double width;  // mm
    double height;
    double x = 2 * 10 * 0.6001 * 25.4 / 72;  // of "B", behind two cells of the font
    double y = 0;
  };
  const Row rows[] = {
      {"", 210, 297},
      {"Page PaperSize=8", 297, 420},
      {"Page PaperSize=1|Page Orientation=2", 279.4, 215.9},
      {"Page MarginLeft=20|Page MarginTop=30", 210, 297, 20 + rows[0].x, 30},
      {"Font Height=20|Font Name=Courier New", 210, 297, 2 * rows[0].x},
      {"Page PaperSize=0|Page PaperWidth=100,5|Page PaperHeight=50", 100.5, 50},
      {"Page PaperSize=0|Page PaperWidth=200|Page PaperHeight=80|Page Orientation=2", 200, 80},
      {"Page PaperSize=256|Page PaperWidth=100", 100, 297},
      {"Page PaperSize=117", 210, 297},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.values);
    const TemporaryDirectory place;
    place.write("r.txt", "A B\r\n");
    place.write("s.vset", setWith(row.values));
    EXPECT_EQ(runViewer({"-g", "-f", "r.txt", "-i", "s.vset#Name"}, in(place)).errors, "");
    const PdfDocument document = readPdf(place.path("r(print).pdf"));
    EXPECT_NEAR(document.width, row.width, kMillimetre);
    EXPECT_NEAR(document.height, row.height, kMillimetre);
    const PdfWord word = document.word("B");
    EXPECT_EQ(word.page, 1);
    EXPECT_NEAR(word.x, row.x, kMillimetre);
    EXPECT_NEAR(word.y, row.y, 1);  // the reader's boxes start at its own idea of an ascent
  }
}

TEST(Print, startsEachPageWithItsOwnPenAndBrush) {
  const TemporaryDirectory place;
  place.write("r.txt",
              "<shape sh_type=2 bt=1 bc=Red right=9 bottom=9/>\r\n\f"
              "<img imgn=3 left=20 top=20 right=60 bottom=40/>\r\n");
  EXPECT_EQ(runViewer({"-g", "-f", "r.txt"}, in(place)).errors, "");
  const Picture page = renderPdf(place.path("r(print).pdf"), 2);
  EXPECT_EQ(dotAt(page, static_cast<int>(dotOf(22)), static_cast<int>(dotOf(22))), 0xFFFFFFU);
}

// In the process: no command line asks for scales, single pages or lists of them.
class PrintJobs : public testing::Test {
 protected:
  PrintJobs() : report_("A\r\n\fB\r\n\fC\r\n\fD\r\n") {
    std::vector<std::unique_ptr<PrintQueues>> systems;
    systems.push_back(makePdfFilePrinter());
    setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
    InitPrinters();
    AppOptions.PrinterName = "";
    report_.doc().Settings.Page.MarginLeft = 20;
    report_.doc().Settings.Page.MarginTop = 40;
  }
  ~PrintJobs() override { setPrintSystem(nullptr); }

  // Such as "1A 2B ", and the title.
  std::string printed() const {
    const PdfDocument document = readPdf(report_.path("report(print).pdf"));
    std::string words;
    for (const PdfWord& word : document.words) words += std::to_string(word.page) + word.text + " ";
    return words + document.title;
  }

  TestReport report_;
};

TEST_F(PrintJobs, areScaledOnEveryPage) {
  report_.doc().PrintScale = 50;
  report_.doc().PrintScaleFlag = true;
  report_.doc().PrintToFile(report_.path("half.pdf"));
  const PdfDocument document = readPdf(report_.path("half.pdf"));
  ASSERT_EQ(document.words.size(), 4U);
  for (const PdfWord& word : document.words) {
    EXPECT_NEAR(word.x, 10, kMillimetre) << word.text;
    EXPECT_NEAR(word.y, 20, 0.5) << word.text;
  }
  EXPECT_NEAR(document.width, 210, kMillimetre);
  EXPECT_EQ(gPrintMetrics.LogPixelsX, 600);
  EXPECT_FALSE(std::filesystem::exists(report_.path("report(print).pdf")));
}

TEST_F(PrintJobs, takeThePagesThatAreAskedFor) {
  report_.doc().PrintAll();
  EXPECT_EQ(printed(), "1A 2B 3C 4D QorUtlView, Document");
  report_.doc().PrintPage(3);
  EXPECT_EQ(printed(), "1C QorUtlView, page: 3");
  report_.doc().Settings.Page.PagesForPrint = "2,4";
  report_.doc().PrintSelected();
  EXPECT_EQ(printed(), "1B 2D QorUtlView, Document");
}

// How many dots of ink here have no trace within six dots of their place there.
int strangers(const Picture& here, const Picture& there) {
  constexpr int kNear = 6;
  const auto isNear = [&there](int x, int y) {
    for (int dy = -kNear; dy <= kNear; ++dy) {
      for (int dx = -kNear; dx <= kNear; ++dx) {
        if (dotAt(there, x + dx, y + dy) != 0xFFFFFF) return true;
      }
    }
    return false;
  };
  int count = 0;
  for (int y = 0; y < here.height; ++y) {
    for (int x = 0; x < here.width; ++x) count += isInk(here, x, y) && !isNear(x, y) ? 1 : 0;
  }
  return count;
}

TEST(Print, standsWhereThePictureStands) {
  const std::string samples = std::string(QOR_SOURCE_DIR) + "/samples";
  std::ifstream list(samples + "/samples.list");
  for (std::string report, codePage; list >> report >> codePage;) {
    SCOPED_TRACE(report);
    const TemporaryDirectory place;
    fs::copy(samples, place.path(), fs::copy_options::recursive);
    // Somebody may have looked at the samples where they stand.
    fs::remove(place.path("QorUtlView.vset"));
    const std::string bytes = place.read(report);
    const Picture shown = pageBy(Road::picture, place, bytes, codePage);
    const Picture paper = pageBy(Road::print, place, bytes, codePage);
    EXPECT_NEAR(shown.width, paper.width, 2);
    EXPECT_NEAR(shown.height, paper.height, 2);
    EXPECT_NE(inkBox(shown, {0, 0, shown.width, shown.height}).right, 0);
    EXPECT_EQ(strangers(shown, paper), 0);
    EXPECT_EQ(strangers(paper, shown), 0);
  }
}

}  // namespace
}  // namespace qor::test
