// Where the characters of a page stand. Characters are 120 twips wide, lines 227 high.
#include "render/text_map.h"

#include <cmath>

#include "document/code_page.h"
#include "platform/system/text_encoding.h"
#include "support/rows.h"
#include "support/test.h"

namespace qor::test {
namespace {

// Such as "abc@0:0,0 3:360,227": the text, and where each stretch of it starts.
std::string told(const TextLine& line) {
  std::string text = utf8FromCodePoints(line.text) + "@";
  for (const TextStretch& stretch : line.stretches) {
    const Spot corner = stretch.at(0, 0);
    text += std::to_string(stretch.first) + ":" + std::to_string(std::lround(corner.x)) + "," +
            std::to_string(std::lround(corner.y)) + "+" +
            std::to_string(std::lround(stretch.edges.back())) + " ";
  }
  return text;
}

std::string told(const TextMap& map) {
  std::string text;
  for (std::size_t i = 0; i < map.lineCount(); ++i) text += told(map.line(i)) + "|";
  return text;
}

TEST(TextMap, knowsTheLinesAndWhereTheyStand) {
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"ab\r\n\r\ncd", "ab@0:0,0+240 |@|cd@0:0,454+240 |"},
      {"a<b>b<b/>c", "abc@0:0,0+120 1:120,0+120 2:240,0+120 |"},
      {"a\rb", "a@0:0,0+120 |b@0:10,0+120 |"},
      {"x<text left=20 top=10 tc=r/><text left=10 top=10 tc=l/>y",
       "xy@0:0,0+120 1:120,0+120 |l r@0:566,566+120 2:1133,566+120 |"},
      {"<text left=10 top=10 tc=a/>\r\n<text left=5 top=11 tc=b/>\r\n<text left=5 top=14 tc=c/>",
       "@|@|@|b a@0:283,623+120 2:566,566+120 |c@0:283,793+120 |"},
      {"<text left=10 top=10 right=50 bottom=20 alignH=2 alignV=2 tc=ab/>",
       "@|ab@0:2594,906+240 |"},
      {"<barcode value=590123412345 left=10 top=10 right=60 bottom=20/>",
       "@|590123412345@0:566,566+2825 |"},
      {"<barcode value=12 type=KAREKOD left=30 top=30 right=10 bottom=10/>",
       "@|12@0:566,566+1134 |"}};
  for (const auto& [bytes, expected] : rows) {
    TestReport report(bytes);
    EXPECT_EQ(told(TextMap(report.page(), DocumentLetters(1251))), expected) << bytes;
    EXPECT_EQ(report.names().size(), 1U) << bytes;  // pictures belong to what is painted
  }
}

// Letters are those of the code page, also where the drawing has none; boxes have their own.
TEST(TextMap, readsLettersAsTheyWereMeant) {
  TestReport report("\xE9<b>\xE9\r\n<text left=1 top=50 right=9 bottom=60 tc=\xE9/>", 1252);
  AppOptions.FontCharset = 204;
  report.doc().Settings.Font.Reset();
  LoadCodePage(1252);
  EXPECT_EQ(told(TextMap(report.page(), DocumentLetters(1252))).substr(0, 5), "éé@");
  const TextMap map(report.page(), DocumentLetters(1252));
  EXPECT_EQ(utf8FromCodePoints(map.text(2)), "й");
}

TEST(TextMap, findsTheGapThatIsNearest) {
  const char* bytes =
      "abcd\r\nef\r\n\r\n<text left=50 top=0 tc=xy/><text left=100 top=60 o=1 tc=up/>";
  TestReport report(bytes);
  const TextMap map(report.page(), DocumentLetters(1251));
  // A spot, and the line and the gap there.
  const std::vector<std::tuple<Spot, std::size_t, std::size_t>> rows = {
      {{-50, -50}, 0, 0}, {{59, 100}, 0, 0},  {{61, 100}, 0, 1},   {{419, 100}, 0, 3},
      {{421, 100}, 0, 4}, {{900, 100}, 0, 4}, {{130, 300}, 1, 1},  {{2000, 300}, 1, 2},
      {{99, 500}, 2, 0},  {{2700, 30}, 4, 0}, {{2900, 100}, 4, 1}, {{9999, 100}, 4, 2},
      {{0, 99999}, 5, 0}};
  for (const auto& [spot, line, column] : rows)
    EXPECT_EQ(map.placeNear(spot), (TextPlace{line, column})) << spot.x << "," << spot.y;
}

// A turned text runs upward; its cells stand at its left, and distances are along it.
TEST(TextMap, turnedTextsHaveTurnedCells) {
  TestReport report("<text left=100 top=60 o=1 tc=up/>");
  const TextMap map(report.page(), DocumentLetters(1251));
  const TextLine line = map.line(1);
  ASSERT_EQ(line.stretches.size(), 1U);
  const TextStretch& stretch = line.stretches.front();
  if (stretch.angle == 0) GTEST_FAIL() << "not turned";
  const Spot end = stretch.at(120, 227);
  const TextDistance back = stretch.from(end);
  EXPECT_NEAR(back.along, 120, 1e-6);
  EXPECT_NEAR(back.across, 227, 1e-6);
  EXPECT_NEAR(end.y, stretch.y - 120 * std::sin(stretch.angle) + 227 * std::cos(stretch.angle),
              1e-6);
  const TextBand band = map.band(1);
  EXPECT_LT(band.top, stretch.y);
  EXPECT_EQ(map.placeNear(stretch.at(130, 100)), (TextPlace{1, 1}));
}

}  // namespace
}  // namespace qor::test
