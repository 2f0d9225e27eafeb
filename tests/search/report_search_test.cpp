// Finding texts in reports: what is found, where, and that places of hits are those of the page's
// map of texts.
#include "search/report_search.h"

#include <random>

#include "platform/system/text_encoding.h"
#include "render/text_map.h"
#include "search/found_text.h"
#include "support/letter_rules.h"
#include "support/test.h"

namespace qor::test {
namespace {

FindQuery queryOf(const std::string& text, const std::string& options = "") {
  return {codePointsFromUtf8(text), options.find('c') != std::string::npos,
          options.find('w') != std::string::npos, options.find('=') == std::string::npos};
}

// Such as "2:0,3+4 ": the page, the line, the first character and how many.
std::string told(std::int32_t page, const TextHit& hit) {
  return std::to_string(page) + ":" + std::to_string(hit.line) + "," +
         std::to_string(hit.span.first) + "+" + std::to_string(hit.span.count) + " ";
}

std::string hitsIn(TestReport& report, const FindQuery& query) {
  std::string hits;
  PageSearch search(report.doc(), query, kTestLetters);
  const InputFile file(AppOptions.FileName);
  for (std::int32_t page = 1; page <= report.doc().PageCount; ++page)
    search.run(page, file,
               [&](const TextHit& hit, std::u32string_view) { hits += told(page, hit); });
  return hits;
}

TEST(PageSearch, findsWhatPeopleRead) {
  struct Row {
    const char* bytes;
    const char* text;
    const char* options;  // c: case matters, w: whole words, =: blanks as they are
    const char* hits;
    int codePage = 1251;
  };
  const Row rows[] = {
      {"Total\r\n\r\nsubtotal TOTAL", "total", "", "1:0,0+5 1:2,3+5 1:2,9+5 "},
      {"Total\r\n\r\nsubtotal TOTAL", "Total", "c", "1:0,0+5 "},
      {"Total\r\nsubtotal TOTAL totals", "total", "w", "1:0,0+5 1:1,9+5 "},
      {"x (a) b(a)", "(a)", "w", "1:0,2+3 1:0,7+3 "},
      {"John   Smith\r\nJohn Smith", "john smith", "", "1:0,0+12 1:1,0+10 "},
      {"John   Smith\r\nJohn Smith", "john smith", "=", "1:1,0+10 "},
      {"John   Smith  x", "  smith ", "", "1:0,7+5 "},
      {"John   Smith  x", " smith ", "=", "1:0,6+7 "},
      {"a  b   c", "a b c", "", "1:0,0+8 "},
      {"aaaa", "aa", "", "1:0,0+2 1:0,2+2 "},
      {"aab", "ab", "", "1:0,1+2 "},
      {"To<b>t</b>al t<b>O", "total", "", ""},
      {"To<b>t<b/>al", "total", "", "1:0,0+5 "},
      {"Tot\033Eal", "total", "", "1:0,0+5 "},
      {"To\ttal", "total", "", "1:0,0+5 "},
      {"To\r\ntal", "total", "", ""},
      {"line\r\n<text left=50 top=20 tc=right/><text left=10 top=20.5 tc=Left/>", "left right", "",
       "1:2,0+10 "},
      {"<text left=9 top=90 tc=b/>\r\n<text left=9 top=10 tc=a/>a", "a", "", "1:1,0+1 1:2,0+1 "},
      {"<barcode value=590123412345 left=1 top=1 right=60 bottom=20/>", "0123", "", "1:1,2+4 "},
      {"<img file=total.png left=1 top=1/>", "total", "", ""},
      {"one\f\r\ntwo one\fone", "one", "", "1:0,0+3 2:0,4+3 3:0,0+3 "},
      {"\xC6\xD3\xCA", "жук", "", "1:0,0+3 "},
      {"\xC6\xD3\xCA \xE6", "жук", "c", ""},
      {"I\xDD i\xFD", "ıi", "", "1:0,0+2 ", 1254},
      {"I\xDD i\xFD", "İI", "", "1:0,3+2 ", 1254},
      {"I\x98 i\x8D", "ıi", "", "1:0,0+2 ", 857},
      {"I i", "i", "", "1:0,0+1 1:0,2+1 "},
      {"abc", "€ж", "", ""},
      {"abc   d", "   ", "", ""},
      {"abc   d", "   ", "=", "1:0,3+3 "},
      {"abc", "", "", ""},
      {"\x82t\x82", "été", "", "1:0,0+3 ", 850},
      {"t<b>\xE9<b/>", "té", "", "1:0,0+2 ", 1252}};
  for (const Row& row : rows) {
    TestReport report(row.bytes, row.codePage);
    EXPECT_EQ(hitsIn(report, queryOf(row.text, row.options)), row.hits)
        << row.bytes << " / " << row.text;
  }
}

// Lines of letters, tags, placed texts and control bytes in any order: places in the map of a page
// and the pages' bytes read the same.
TEST(PageSearch, placesAreThoseOfTheMap) {
  const std::vector<std::string> pieces = linesOf(
      "ab|a|A b|  |b|<b>|<b/>|\033E|\r\n|\r|<b|\r\n|\n|\033&l|<text left=9 top=7 tc=abA/>|"
      "<text left=1 top=7 tc=ba/>|<barcode value=AB left=3 top=50 right=9 bottom=60 type=39/>|"
      "\r\n|<h1>|\xE0",
      '|');
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    std::string bytes;
    for (int i = 0; i < 80; ++i) bytes += pieces[random() % pieces.size()];
    TestReport report(bytes);
    for (const char* wanted : {"ab", "a b", "b", "aba"}) {
      std::string expected;
      TextMatcher matcher(queryOf(wanted), kTestLetters, 1251);
      const TextMap map(report.page(), DocumentLetters(1251));
      for (std::size_t i = 0; i < map.lineCount(); ++i) {
        EXPECT_EQ(map.text(i), map.line(i).text);
        matcher.findIn(map.text(i), [&](const TextSpan& hit) { expected += told(1, {i, hit}); });
      }
      report.doc().ReleasePage(1);
      EXPECT_EQ(hitsIn(report, queryOf(wanted)), expected) << bytes;
    }
  }
}

// All hits in the order of pages, and how many come before each page.
std::string told(const SearchHits& hits, std::int32_t pages) {
  std::string text;
  for (std::uint64_t i = 0; i < hits.total(); ++i) {
    const HitPlace place = hits.at(i);
    text += std::to_string(place.page) + "." + std::to_string(place.number) + " ";
    EXPECT_EQ(hits.indexOf(place), i);
  }
  text += "|";
  for (std::int32_t page = 1; page <= pages; ++page)
    text += " " + std::to_string(hits.firstFrom(page));
  return text;
}

TEST(ReportSearch, goesThroughTheReportFromAPageOn) {
  TestReport report("x x\fy\fx\fy\fx x x");
  ReportSearch search(report.doc(), queryOf("x"), kTestLetters, 3);
  int steps = 0;
  const auto some = [&steps] { return ++steps % 3 != 0; };
  EXPECT_TRUE(search.goOn(some));
  EXPECT_EQ(told(search.hits(), 5), "3.0 | 0 0 0 1 1");
  while (search.goOn(some)) continue;
  EXPECT_TRUE(search.isDone());
  EXPECT_EQ(told(search.hits(), 5), "1.0 1.1 3.0 5.0 5.1 5.2 | 0 2 2 3 3");
  // The last page is looked at anew, and another one comes; what is still being written is none.
  std::ofstream(AppOptions.FileName, std::ios::app) << " x\fx";
  AppOptions.DynamicMode = true;
  search.searchFrom(5);
  EXPECT_FALSE(search.isDone());
  report.doc().ScanPages(true);
  while (search.goOn([] { return true; })) continue;
  EXPECT_EQ(told(search.hits(), 6), "1.0 1.1 3.0 5.0 5.1 5.2 6.0 | 0 2 2 3 3 6");
}

TEST(ReportSearch, tellsOfAReportThatWasCut) {
  TestReport report("x\fx\fx");
  ReportSearch search(report.doc(), queryOf("x"), kTestLetters, 1);
  int steps = 0;
  search.goOn([&steps] { return ++steps < 2; });
  std::filesystem::resize_file(AppOptions.FileName, 2);
  EXPECT_THROW(search.goOn([] { return true; }), ReportError);
}

TEST(ReportSearch, knowsWhatCantBeThere) {
  TestReport report("abc");
  const auto search = [&](const std::string& text) {
    return ReportSearch(report.doc(), queryOf(text), kTestLetters, 1);
  };
  EXPECT_EQ(search("a€é").missingLetter(), U'é');
  EXPECT_EQ(search("aж").missingLetter(), U'\0');
  EXPECT_TRUE(search("  ").isEmpty());
  EXPECT_FALSE(search(std::string(10000, 'a')).goOn([] { return true; }));
}

TEST(FoundText, showsAHitAmongItsNeighbours) {
  const std::u32string line =
      U"   " + std::u32string(60, U'a') + U"HIT" + std::u32string(200, U'b');
  const FoundText found = foundText(line, {63, 3});
  EXPECT_EQ(found.before, U"\u2026" + std::u32string(40, U'a'));
  EXPECT_EQ(found.hit, U"HIT");
  EXPECT_EQ(found.behind, std::u32string(120, U'b'));
  EXPECT_EQ(foundText(U"    x HIT", {6, 3}).before, U"x ");
}

}  // namespace
}  // namespace qor::test
