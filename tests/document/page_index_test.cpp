// From the bytes of a report to its pages.
#include <algorithm>
#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

// What a scan gave.
struct Scan {
  std::vector<std::pair<std::uint64_t, std::uint64_t>> pages;  // offset, length
  bool complete = false;
  std::uint64_t known = 0;

  // Such as "0+3 3+4 complete, 7".
  std::string text() const {
    std::ostringstream out;
    for (const auto& [offset, length] : pages) out << offset << "+" << length << " ";
    out << (complete ? "complete, " : "open, ") << known;
    return out.str();
  }
};

class PageIndexTest : public testing::Test {
 protected:
  PageIndexTest() { AppOptions = {}; }

  void put(std::string_view bytes) { AppOptions.FileName = place_.write("r.txt", bytes); }

  static std::string resultOf(const VDoc& doc, bool complete) {
    Scan scan{{}, complete, doc.KnownSize};
    for (const VDocPage& page : doc.Pages) scan.pages.emplace_back(page.Offset, page.Length);
    EXPECT_EQ(static_cast<std::size_t>(doc.PageCount), doc.Pages.size());
    return scan.text();
  }
  static std::string scanned(VDoc& doc, bool rescan) {
    const bool complete = doc.ScanPages(rescan);
    return resultOf(doc, complete);
  }

 private:
  OptionsGuard guard_;
  TemporaryDirectory place_;
};

const std::string kEof = "\x1A";

std::string letters(std::size_t count) {
  return std::string(count, 'A');
}

TEST_F(PageIndexTest, findsThePages) {
  struct Row {
    const char* name;
    std::string bytes;
    bool dynamic;
    const char* expected;
  };
  const Row rows[] = {
      {"empty", "", false, "open, 0"},
      {"end-of-file byte alone", kEof, false, "complete, 1"},
      {"no terminator", "ABC", false, "0+3 open, 3"},
      {"form feed last", "AB\f", false, "0+4 open, 3"},
      {"form feeds", "A\fB\fC", false, "0+2 2+2 4+1 open, 5"},
      {"empty pages", "\f\f\f", false, "0+1 1+1 2+2 open, 3"},
      {"form feed, CR, LF", "A\f\r\nB" + kEof, false, "0+3 4+2 complete, 6"},
      {"form feed, CR, last byte lost", "A\f\rB", false, "0+2 open, 4"},
      {"form feed, CR, byte lost", "A\f\rBC", false, "0+2 4+1 open, 5"},
      {"end behind a form feed", "A\f" + kEof, false, "0+2 complete, 3"},
      {"end before other bytes", "A\r\n" + kEof + "B", false, "0+3 complete, 5"},
      {"head of control sequences", "\033EAB\fC", false, "2+3 5+1 open, 6"},
      {"growing, empty", "", true, "open, 0"},
      {"growing, half a page", "ABC", true, "open, 0"},
      {"growing, a page and a half", "A\fBC", true, "0+2 open, 2"},
      {"growing, whole pages", "A\f", true, "0+3 open, 2"},
      {"growing, complete", "A\fBC" + kEof, true, "0+2 2+3 complete, 5"},
      {"form feed ends the block", letters(32767) + "\f\r\nB", false,
       "0+32769 32768+3 open, 32771"},
      {"CR ends the block", letters(32766) + "\f\r\nB", false, "0+32768 32769+1 open, 32770"},
      {"end opens a block", letters(32768) + kEof, false, "complete, 32769"},
      {"end closes a block", letters(32767) + kEof, false, "0+32768 complete, 32768"},
      {"end in the second block", letters(32769) + kEof, false, "0+32770 complete, 32770"},
      {"blocks start at pages", "\f" + letters(32768) + kEof, false, "0+1 complete, 32770"},
  };
  for (const Row& row : rows) {
    put(row.bytes);
    AppOptions.DynamicMode = row.dynamic;
    VDoc doc;
    EXPECT_EQ(scanned(doc, false), row.expected) << row.name;
  }
}

// The rules of the scan, block by block, as a reader follows them that reads the file anew for each
// page.
void scanByBlocks(std::string_view file, bool rescan, bool dynamic, Scan& scan) {
  constexpr std::size_t blockSize = 32768;
  if (!rescan) scan = {};
  std::uint64_t position = 0;
  if (!scan.pages.empty()) {
    position = scan.pages.back().first + scan.pages.back().second;
    if (position < file.size() && file[position] == 'f') ++position;
  }
  std::uint64_t pageStart = position;
  scan.complete = false;
  scan.known = file.size();
  while (position < file.size()) {
    const std::string_view block = file.substr(position, blockSize);
    const std::uint64_t blockStart = position;
    position += block.size();
    std::size_t stop = 0;
    while (block[stop] != '\f' && block[stop] != '\x1A' && blockStart + stop + 1 < file.size() &&
           stop + 1 < block.size()) {
      ++stop;
    }
    const char last = block[stop];
    const bool terminated = last == '\f' || last == '\x1A';
    if (!terminated && blockStart + stop + 1 < file.size()) continue;
    if (!terminated && dynamic) {
      scan.known = pageStart;
      return;
    }
    if (last != '\x1A' || stop > 0) {
      const std::uint64_t terminator = blockStart + stop;
      const std::uint64_t end = terminator + (terminator + 1 == file.size() ? 1 : 0);
      std::uint64_t length = end - pageStart;
      if (last == '\f') length += file.substr(terminator + 1).starts_with("\r\n") ? 2 : 1;
      scan.pages.emplace_back(pageStart, length);
      pageStart = position = end + (block.substr(stop + 1).starts_with('\r') ? 3 : 1);
    }
    if (last == '\x1A') {
      scan.complete = true;
      if (scan.pages.empty()) return;
      const std::string_view tail =
          file.substr(std::min<std::size_t>(scan.pages.back().first, file.size()), blockSize);
      const auto controls = static_cast<std::size_t>(
          std::count_if(tail.begin(), tail.end(), [](char c) { return c >= 0 && c < 32; }));
      if (tail.size() < 2 && controls > 0 && 5 * controls > tail.size()) scan.pages.pop_back();
      return;
    }
  }
}

// Deterministic reports: the bytes that end pages and lines stand close together, and in large
// reports around the ends of blocks.
class ReportMaker {
 public:
  std::string make() {
    const bool large = below(12) == 0;
    std::string report = letters(large ? 32768 * below(3) + below(8) : below(40));
    for (std::size_t i = 0; i < report.size(); ++i) {
      const bool nearBlockEnd = i % 32768 < 4 || i % 32768 > 32763;
      if (large ? nearBlockEnd && below(2) == 0 : below(2) == 0) report[i] = special();
    }
    if (large && below(2) == 0) report.insert(0, below(4), '\f');
    return report;
  }

  std::size_t below(std::size_t limit) { return random_() % limit; }

 private:
  char special() {
    static constexpr std::string_view common = "\f\f\f\r\r\n\nf\1BC";
    return below(25) == 0 ? '\x1A' : common[below(common.size())];
  }

  std::mt19937 random_{20240229};
};

TEST_F(PageIndexTest, agreesWithTheBlockRules) {
  ReportMaker maker;
  for (int i = 0; i < 1500; ++i) {
    const std::string report = maker.make();
    const std::string start = report.substr(0, maker.below(report.size() + 1));
    for (const bool dynamic : {false, true}) {
      AppOptions.DynamicMode = dynamic;
      VDoc doc;
      Scan expected;
      put(start);
      scanByBlocks(start, false, dynamic, expected);
      ASSERT_EQ(scanned(doc, false), expected.text()) << testing::PrintToString(start);
      if (expected.complete) continue;
      put(report);
      scanByBlocks(report, true, dynamic, expected);
      ASSERT_EQ(scanned(doc, true), expected.text())
          << testing::PrintToString(start) << " grown to " << testing::PrintToString(report);
    }
  }
}

TEST_F(PageIndexTest, followsAGrowingReport) {
  struct Step {
    const char* added;
    bool changed;
    const char* expected;
  };
  const std::vector<Step> reports[] = {
      {{"A\fB", true, "0+2 open, 2"},
       {"C", true, "0+2 open, 2"},
       {"\fD", true, "0+2 2+3 open, 5"},
       {"\x1A", true, "0+2 2+3 5+2 complete, 7"},
       {"", false, "0+2 2+3 5+2 complete, 7"}},
      // The letter "f" where a page has to start is skipped.
      {{"A\ff", true, "0+2 open, 2"}, {"X\f", true, "0+2 3+3 open, 5"}},
      // A page that was followed by CR LF when it was found leaves the LF to the next one.
      {{"A\f\r\n", true, "0+3 open, 4"}, {"B\f", true, "0+3 3+4 open, 6"}},
  };
  AppOptions.DynamicMode = true;
  for (const auto& steps : reports) {
    std::string bytes;
    VDoc doc;
    for (const Step& step : steps) {
      bytes += step.added;
      put(bytes);
      EXPECT_EQ(doc.FileChanged(), step.changed) << testing::PrintToString(bytes);
      if (!step.changed) continue;
      EXPECT_EQ(scanned(doc, doc.PageCount > 0), step.expected) << testing::PrintToString(bytes);
    }
  }
}

TEST_F(PageIndexTest, findsTheFirstPageAtOnce) {
  const std::pair<std::string, const char*> rows[] = {
      {"", ""},
      {"AB", "0+2 "},
      {"AB\fCD", "0+3 "},
      {"AB\f\r\nC", "0+5 "},
      {"AB\f\r\n", "0+4 "},
      {"AB\f\rC", "0+4 "},
      {"AB\f\r", "0+3 "},
      {"AB\f", "0+3 "},
      {"AB\x1A", "0+3 "},
      {"AB\x1A\x1A", "0+2 "},
      {"\033EAB\fC", "0+3 "},
      {letters(70000), "0+65565 "},
      {letters(65564) + "\fB", "0+65565 "},
      {letters(65565) + "\fB", "0+65565 "},
  };
  for (const auto& [bytes, pages] : rows) {
    put(bytes);
    VDoc doc;
    doc.ScanFirstPage();
    EXPECT_EQ(resultOf(doc, false), std::string(pages) + "open, 1") << bytes.substr(0, 20);
  }
}

TEST_F(PageIndexTest, readsTheHead) {
  struct Row {
    std::string bytes;
    int percent;
    std::uint32_t length;
  };
  const Row rows[] = {
      {"ABC", 100, 0},
      {"AB", 100, 0},
      {"\017A", 100, 0},
      {"\017AB", 125, 0},
      {"\033CB\017X", 125, 4},
      {"\033(9TX", 125, 4},
      {"\033(s18HX", 125, 6},
      {"\033(s10HX", 75, 6},
      {"\033(s12HX", 100, 6},
      {"\033EX", 150, 2},
      {"\033E\033&l1OX", 150, 7},
      {"\033E\r\nX", 150, 3},
      {" \033EX", 100, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.bytes));
    put(row.bytes);
    VDoc doc;
    const auto file = VDoc::OpenFile();
    ASSERT_TRUE(file);
    EXPECT_EQ(doc.ReadHeader(*file), row.length > 0 ? 1 : 0);
    EXPECT_EQ(doc.BaseFontPercent, row.percent);
    EXPECT_EQ(doc.HeaderLength, row.length);
  }
}

TEST_F(PageIndexTest, selectsPagesByList) {
  constexpr const char* unreadable = "unreadable";
  struct Row {
    const char* list;
    std::string selected;
  };
  const Row rows[] = {
      {"", "123456"},         {"2", "2"},          {"1,3-5", "1345"},
      {" 2 , 4 - 5 ", "245"}, {"5-3", ""},         {"9", ""},
      {"4-99", "456"},        {"6,6,1", "16"},     {"1,x", unreadable},
      {"1,,2", unreadable},   {"1-x", unreadable}, {"1;2", unreadable},
  };
  put("1\f2\f3\f4\f5\f6");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.list);
    VDoc doc;
    doc.ScanPages(false);
    doc.Settings.Page.PagesForPrint = row.list;
    std::string expected = row.selected;
    if (expected == unreadable) {
      doc.Pages.front().Selected = false;
      EXPECT_THROW(doc.SelectPages(), ConversionError);
      expected = "23456";
    } else {
      doc.SelectPages();
    }
    std::string selected;
    for (const VDocPage& page : doc.Pages) {
      if (page.Selected) selected += std::to_string(page.Number);
    }
    EXPECT_EQ(selected, expected);
  }
}

}  // namespace
}  // namespace qor::test
