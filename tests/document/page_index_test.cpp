// From the bytes of a report to its pages.
#include "support/test.h"

namespace qor::test {
namespace {

class PageIndexTest : public testing::Test {
 protected:
  PageIndexTest() { AppOptions = {}; }

  void put(std::string_view bytes) { AppOptions.FileName = place_.write("r.txt", bytes); }

  // Offsets and lengths, such as "0+3 3+4 complete, 7".
  static std::string resultOf(const VDoc& doc, bool complete) {
    std::ostringstream out;
    for (const VDocPage& page : doc.Pages) out << page.Offset << "+" << page.Length << " ";
    EXPECT_EQ(static_cast<std::size_t>(doc.PageCount), doc.Pages.size());
    out << (complete ? "complete, " : "open, ") << doc.KnownSize;
    return out.str();
  }
  static std::string scanned(VDoc& doc, bool rescan) {
    const bool complete = doc.ScanPages(rescan);
    return resultOf(doc, complete);
  }
  void expectPages(const std::vector<std::pair<std::string, std::string>>& rows) {
    for (const auto& [bytes, pages] : rows) {
      put(bytes);
      VDoc doc;
      EXPECT_EQ(scanned(doc, false), pages) << bytes.substr(0, 20);
    }
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
  expectPages(rowsOf(
      " => open, 0|\032 => complete, 1|ABC => 0+3 open, 3|AB\f => 0+4 open, 3|"
      "A\fB\fC => 0+2 2+2 4+1 open, 5|\f\f\f => 0+1 1+1 2+2 open, 3|"
      "A\f\r\nB\032 => 0+3 4+2 complete, 6|A\f\rB => 0+2 open, 4|A\f\rBC => 0+2 4+1 open, 5|"
      "A\f\032 => 0+2 complete, 3|A\r\n\032B => 0+3 complete, 5|\033EAB\fC => 2+3 5+1 open, 6",
      " => "));
  // Around the end of the first block.
  expectPages({{letters(32767) + "\f\r\nB", "0+32769 32768+3 open, 32771"},
               {letters(32766) + "\f\r\nB", "0+32768 32769+1 open, 32770"},
               {letters(32768) + kEof, "complete, 32769"},
               {letters(32767) + kEof, "0+32768 complete, 32768"},
               {letters(32769) + kEof, "0+32770 complete, 32770"},
               {"\f" + letters(32768) + kEof, "0+1 complete, 32770"},
               // Blocks start anew at each page, whatever the windows of the reader are.
               {"A\f" + letters(32767) + "\f\r\nB", "0+2 2+32769 32770+3 open, 32773"},
               {"A\f" + letters(32766) + "\f\r\nB", "0+2 2+32768 32771+1 open, 32772"},
               {"A\f" + letters(32768) + kEof, "0+2 complete, 32771"},
               {letters(262143) + "\f\r\nB", "0+262145 262144+3 open, 262147"},
               {letters(262142) + "\f\r\nB", "0+262144 262145+1 open, 262146"},
               {letters(300000) + "\fB" + kEof, "0+300001 300001+2 complete, 300003"}});
  AppOptions.DynamicMode = true;
  expectPages(
      rowsOf(" => open, 0|ABC => open, 0|A\fBC => 0+2 open, 2|A\f => 0+3 open, 2|"
             "A\fBC\032 => 0+2 2+3 complete, 5",
             " => "));
}

TEST_F(PageIndexTest, startsAnewWithEachScan) {
  VDoc doc;
  for (const auto& [bytes, pages] : rowsOf("\033EAB\fC => 2+3 5+1 open, 6|AB\fC => 0+3 3+1 open, 4|"
                                           "\033E\033EA => 4+1 open, 5| => open, 0",
                                           " => ")) {
    put(bytes);
    EXPECT_EQ(scanned(doc, false), pages);
  }
}

TEST_F(PageIndexTest, followsAGrowingReport) {
  AppOptions.DynamicMode = true;
  VDoc doc;
  std::string bytes;
  for (const auto& [added, expected] :
       {std::pair{"A\fB", "0+2 open, 2"},
        {"C", "0+2 open, 2"},
        {"\fD", "0+2 2+3 open, 5"},
        // The letter "f" where a page has to start is skipped; LF behind CR is the next page's.
        {"\ff", "0+2 2+3 5+2 open, 7"},
        {"X\f\r\n", "0+2 2+3 5+2 8+3 open, 12"},
        {"\x1A", "0+2 2+3 5+2 8+3 11+2 complete, 13"}}) {
    put(bytes += added);
    EXPECT_TRUE(doc.FileChanged());
    EXPECT_EQ(scanned(doc, doc.PageCount > 0), expected) << testing::PrintToString(bytes);
  }
  EXPECT_FALSE(doc.FileChanged());
}

TEST_F(PageIndexTest, findsTheFirstPageAtOnce) {
  const auto firstPage = [this](const std::string& bytes) {
    put(bytes);
    VDoc doc;
    doc.ScanFirstPage();
    return resultOf(doc, false);
  };
  const std::pair<const char*, std::string> rows[] = {
      {"AB", "0+2"},         {"AB\fCD", "0+3"},    {"AB\f\r\nC", "0+5"}, {"AB\f\r\n", "0+4"},
      {"AB\f\rC", "0+4"},    {"AB\f\r", "0+3"},    {"AB\f", "0+3"},      {"AB\x1A", "0+3"},
      {"AB\x1A\x1A", "0+2"}, {"\033EAB\fC", "0+3"}};
  for (const auto& [bytes, page] : rows) EXPECT_EQ(firstPage(bytes), page + " open, 1") << bytes;
  EXPECT_EQ(firstPage(""), "open, 1");
  EXPECT_EQ(firstPage(letters(70000)), "0+65565 open, 1");
  EXPECT_EQ(firstPage(letters(65564) + "\fB"), "0+65565 open, 1");
  EXPECT_EQ(firstPage(letters(65565) + "\fB"), "0+65565 open, 1");
}

TEST_F(PageIndexTest, readsTheHead) {
  const std::string resets = times(600, "\033E");
  // The width of the base font in percent, and the length of the head.
  for (const auto& [bytes, expected] : rowsOf(
           resets.substr(0, 1022) + "X => 150 1022|" + resets +
               " => 150 1024|ABC => 100 0|\017A => 100 0|\017AB => 125 0|\033EX => 150 2|"
               " \033EX => 100 0|\033CB\017X => 125 4|\033(9TX => 125 4|\033(s18HX => 125 6|"
               "\033(s10HX => 75 6|\033(s12HX => 100 6|\033E\033&l1OX => 150 7|\033E\r\nX => 150 3",
           " => ")) {
    put(bytes);
    VDoc doc;
    const bool found = doc.ReadHeader(*VDoc::OpenFile()) == 1;
    EXPECT_EQ(found, doc.HeaderLength > 0);
    const std::string percent = std::to_string(doc.BaseFontPercent);
    EXPECT_EQ(percent + " " + std::to_string(doc.HeaderLength), expected) << bytes.substr(0, 20);
  }
}

TEST_F(PageIndexTest, refusesPagesThatHoldTooMuchAndNamesThem) {
  constexpr std::size_t kMost = 4'000'000;
  constexpr std::uint64_t kLongest = 256U << 20;
  struct Row {
    std::string page;
    std::uint64_t length;
    const char* reason;  // none: it is read
  };
  for (const auto& [bytes, length, reason] : std::initializer_list<Row>{
           {times(kMost, "\r"), 0, ""},
           {times(kMost + 1, "\r"), 0, "has more than 4 million lines"},
           {times(kMost - 1, "<b>"), 0, ""},
           {times(kMost + 1, "<b/>"), 0, "has more than 4 million tags"},
           {times(kMost + 1, "a\x0E"), 0, "has more than 4 million items"},
           {"a", kLongest, ""},
           {"a", kLongest + 1, "is longer than 256 MB, which is too long to be read"}}) {
    put("a\f<h1>" + bytes);
    VDoc doc;
    doc.ScanPages(false);
    if (length > 0) doc.Pages.back().Length = length;
    std::string told;
    try {
      doc.ReadUpTo(2);
      doc.GetPage(2);
    } catch (const ReportError& error) {
      told = error.what();
    }
    const std::string prefix = "Error: page 2 ";
    EXPECT_EQ(told, *reason == 0 ? "" : prefix + reason + ": " + AppOptions.FileName);
    EXPECT_EQ(doc.Pages.back().Loaded, *reason == 0);
    EXPECT_EQ(doc.Pages.back().FirstLine == nullptr, *reason != 0) << reason;
    EXPECT_EQ(doc.FontAt(3).Height, *reason == 0 ? 24 : 10) << reason;
  }
}

TEST_F(PageIndexTest, selectsPagesByList) {
  // The first page is not selected before. "?" stands for a list that is refused.
  auto rows = rowsOf(
      "2 2|1,3-5 1345|5-3 |9 |4-99 456|6,6,1 16|1,x ?23456|1,,2 ?23456|1-x ?23456|"
      "1;2 ?23456");
  // Twenty entries count, and 255 characters behind a comma or a dash.
  rows.insert(rows.end(), {{"", "23456"},
                           {" 2 , 4 - 5 ", "245"},
                           {times(19, "2,") + "4", "24"},
                           {times(20, "2,") + "4", "2"},
                           {times(20, "2,") + "x", "?23456"},
                           {"2," + std::string(254, ' ') + "4", "24"},
                           {"2," + std::string(255, ' ') + "4", "?23456"},
                           {"2-" + std::string(254, ' ') + "4", "234"},
                           {"2-" + std::string(255, ' ') + "4", "?23456"}});
  put("1\f2\f3\f4\f5\f6");
  for (const auto& [list, expected] : rows) {
    VDoc doc;
    doc.ScanPages(false);
    doc.Pages.front().Selected = false;
    doc.Settings.Page.PagesForPrint = list;
    std::string selected;
    try {
      doc.SelectPages();
    } catch (const ConversionError&) {
      selected = "?";
    }
    for (const VDocPage& page : doc.Pages)
      if (page.Selected) selected += std::to_string(page.Number);
    EXPECT_EQ(selected, expected) << list;
  }
}

}  // namespace
}  // namespace qor::test
