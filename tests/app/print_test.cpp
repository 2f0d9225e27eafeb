// Printing with no window on the printer that makes PDF files, read back from its files.
#include <algorithm>
#include <cmath>
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
#include "support/temporary_directory.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

constexpr double kMillimetre = 0.2;  // tolerance: a dot of the printer and the reader's rounding

Surroundings in(const TemporaryDirectory& place) {
  return {place.path(), {}, 0};
}

std::vector<std::string> names(const TemporaryDirectory& place) {
  std::vector<std::string> found;
  for (const auto& entry : fs::directory_iterator(place.path())) {
    found.push_back(entry.path().filename().string());
  }
  std::sort(found.begin(), found.end());
  return found;
}

TEST(Print, endsAsEachRunShould) {
  struct Row {
    const char* what;
    std::vector<std::string> arguments;
    const char* report;
    int exitCode;
    const char* error;  // part of the only line on standard error, null for silence
    std::vector<std::string> left;
    unsigned long fileSizeLimit = 0;
  };
  const std::string set = "QorUtlView.vset";
  const std::string side = "r.b_1.jpeg";
  const Row rows[] = {
      {"plain", {"-g"}, "A\r\n", 0, nullptr, {set, "r.b(print).pdf", "r.b.txt", side}},
      {"named",
       {"-g", "-p", "microsoft print to PDF"},
       "A\r\n",
       0,
       nullptr,
       {set, "r.b(print).pdf", "r.b.txt", side}},
      {"deleted", {"-g", "-dd"}, "A\r\n", 0, nullptr, {set, "r.b(print).pdf"}},
      {"no such printer", {"-g", "-dd", "-p", "nobody"}, "A\r\n", 0, "nobody", {set}},
      {"strange printer",
       {"-g", "-p", "../a b/\"#"},
       "A\r\n",
       0,
       "../a b/",
       {set, "r.b.txt", side}},
      {"no pages", {"-g"}, "", 0, nullptr, {set, "r.b.txt", side}},
      {"bad barcode",
       {"-g", "-dd"},
       "A\r\n<barcode value=12345678901 br_type=UPCE right=50 bottom=9/>\r\n",
       254,
       "digit",
       {set}},
      {"no room", {"-g"}, "A\r\n", 0, "r.b(print).pdf", {set, "r.b.txt", side}, 2048},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    const TemporaryDirectory place;
    place.write("r.b.txt", row.report);
    place.write(side, "side");
    std::vector<std::string> arguments = {"-f", "r.b.txt"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = runViewer(arguments, {place.path(), {}, row.fileSizeLimit});
    EXPECT_EQ(outcome.exitCode, row.exitCode);
    EXPECT_EQ(outcome.signal, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'),
              row.error != nullptr ? 1 : 0);
    if (row.error != nullptr) {
      EXPECT_NE(outcome.errors.find(row.error), std::string::npos) << outcome.errors;
    }
    EXPECT_EQ(names(place), row.left);
  }
}

TEST(Print, withoutReportSaysSo) {
  const TemporaryDirectory place;
  const Outcome outcome = runViewer({"-g", "-dd"}, in(place));
  EXPECT_EQ(outcome.exitCode, 255);
  EXPECT_EQ(outcome.errors, "File for print not selected.\n");
}

TEST(Print, replacesAnEarlierFileOnlyByAWholeOne) {
  const TemporaryDirectory place;
  place.write("r.txt", "A\r\n\f");
  place.write("r(print).pdf", "old");
  EXPECT_NE(runViewer({"-g", "-f", "r.txt"}, {place.path(), {}, 2048}).errors, "");
  EXPECT_EQ(place.read("r(print).pdf"), "old");
  EXPECT_EQ(runViewer({"-g", "-f", "r.txt"}, in(place)).errors, "");
  EXPECT_EQ(readPdf(place.path("r(print).pdf")).pages, 1);
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

// The set that a run makes for itself, with other values for some keys.
std::string setWith(const std::vector<std::pair<std::string, std::string>>& values) {
  std::string set = "<ReportSetsIniFile Ver=\"1.0\"/>\r\n<Set SetName=\"Name\">\r\n";
  for (const char* section : {"Print", "Page", "Font"}) {
    set += std::string("<") + section + ">\r\n";
    for (const auto& [key, value] : values) {
      const bool isFont = key == "Height" || key == "Name";
      const bool isPrint = key == "NumOfCopies";
      const std::string home = isFont ? "Font" : isPrint ? "Print" : "Page";
      if (home == section) set += "<" + key + " = \"" + value + "\"/>\r\n";
    }
    set += std::string("<") + section + "/>\r\n";
  }
  return set + "<Set/>\r\n";
}

TEST(Print, followsTheSettingsSet) {
  struct Row {
    const char* what;
    std::vector<std::pair<std::string, std::string>> values;
    double width;  // mm
    double height;
    double x;  // of the second word
    double y;
  };
  // "B" stands behind two cells of the font: of 10 points and 600/1000, unless told otherwise.
  const double cell = 10 * 0.6001 * 25.4 / 72;
  const Row rows[] = {
      {"plain", {}, 210, 297, 2 * cell, 0},
      {"A3", {{"PaperSize", "8"}}, 297, 420, 2 * cell, 0},
      {"landscape Letter", {{"PaperSize", "1"}, {"Orientation", "2"}}, 279.4, 215.9, 2 * cell, 0},
      {"margins", {{"MarginLeft", "20"}, {"MarginTop", "30"}}, 210, 297, 20 + 2 * cell, 30},
      {"font", {{"Height", "20"}, {"Name", "Courier New"}}, 210, 297, 4 * cell, 0},
      {"own size",
       {{"PaperSize", "0"}, {"PaperWidth", "100,5"}, {"PaperHeight", "50"}},
       100.5,
       50,
       2 * cell,
       0},
      {"own size across",
       {{"PaperSize", "0"}, {"PaperWidth", "200"}, {"PaperHeight", "80"}, {"Orientation", "2"}},
       200,
       80,
       2 * cell,
       0},
      {"own size of the dialog",
       {{"PaperSize", "256"}, {"PaperWidth", "100"}},
       210,
       297,
       2 * cell,
       0},
      {"unknown paper", {{"PaperSize", "117"}}, 210, 297, 2 * cell, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
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

// Dark cells of a page, a millimetre wide and high.
class InkMap {
 public:
  InkMap(const Picture& page, int darkBelow) : width_(page.width / kCell + 1) {
    cells_.resize(static_cast<std::size_t>(width_) *
                  static_cast<std::size_t>(page.height / kCell + 1));
    for (int y = 0; y < page.height; ++y) {
      for (int x = 0; x < page.width; ++x) {
        const std::uint32_t dot =
            page.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(page.width) +
                        static_cast<std::size_t>(x)];
        const auto green = static_cast<int>(dot >> 8 & 0xFF);
        if (green < darkBelow) cells_[index(x / kCell, y / kCell)] = true;
      }
    }
  }

  // Inked cells here that have no ink within a cell of their place there.
  std::size_t strangersTo(const InkMap& other) const {
    std::size_t count = 0;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
      if (cells_[i] && !other.hasNear(static_cast<int>(i) % width_, static_cast<int>(i) / width_)) {
        ++count;
      }
    }
    return count;
  }

  std::ptrdiff_t inked() const { return std::count(cells_.begin(), cells_.end(), true); }

 private:
  static constexpr int kCell = 4;  // dots of 1/96 inch

  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  bool hasNear(int x, int y) const {
    for (int row = y - 1; row <= y + 1; ++row) {
      for (int column = std::max(0, x - 1); column <= std::min(width_ - 1, x + 1); ++column) {
        if (row >= 0 && index(column, row) < cells_.size() && cells_[index(column, row)]) {
          return true;
        }
      }
    }
    return false;
  }

  int width_;
  std::vector<bool> cells_;
};

TEST(Print, standsWhereThePictureStands) {
  constexpr int kClear = 160;  // darker than this is ink
  constexpr int kFaint = 245;
  std::ifstream list(std::string(QOR_SOURCE_DIR) + "/samples/samples.list");
  for (std::string line; std::getline(list, line);) {
    std::istringstream fields(line);
    std::string report;
    std::string codePage;
    fields >> report >> codePage;
    SCOPED_TRACE(report);
    const TemporaryDirectory place;
    fs::copy(std::string(QOR_SOURCE_DIR) + "/samples", place.path(), fs::copy_options::recursive);
    // Somebody may have looked at the samples where they stand.
    fs::remove(place.path("QorUtlView.vset"));
    const std::vector<std::string> arguments = {"-f", report, "-codepage", codePage};
    auto print = arguments;
    print.push_back("-g");
    ASSERT_EQ(runViewer(print, in(place)).errors, "");
    auto show = arguments;
    show.insert(show.end(), {"-export", "page.png"});
    ASSERT_EQ(runViewer(show, in(place)).errors, "");
    const bool several = !place.has("page.png");
    const auto picture = decodePicture(place.read(several ? "page(1).png" : "page.png"));
    ASSERT_TRUE(picture);
    const Picture printed =
        renderPdf(place.path(report.substr(0, report.rfind('.')) + "(print).pdf"), 1);
    EXPECT_NEAR(picture->width, printed.width, 2);
    EXPECT_NEAR(picture->height, printed.height, 2);
    const InkMap shown(*picture, kClear);
    const InkMap paper(printed, kClear);
    EXPECT_GT(shown.inked(), 100);
    EXPECT_LE(shown.strangersTo(InkMap(printed, kFaint)), 0U);
    EXPECT_LE(paper.strangersTo(InkMap(*picture, kFaint)), 0U);
  }
}

}  // namespace
}  // namespace qor::test
