// Where pages put their lines and items. The outline of the base font has 2048 units to the em, an
// ascent of 1705, a descent of 615 and a width of 1229: at 10 points a row is 227 twips high and a
// character 120 wide; with a cell of 200 twips a character is 106 wide.
#include "render/page_walk.h"

#include "document/vcommand.h"
#include "support/recording_canvas.h"
#include "support/test.h"

namespace qor::test {
namespace {

constexpr const char* kPlain = "Courier New -200x0 weight 400 color 0\n";

std::string plain(const std::string& place, const std::string& text) {
  return "text " + place + " \"" + text + "\" " + kPlain;
}

// Plain texts as "place text|place text".
std::string plainTexts(const std::string& texts) {
  std::string record;
  for (const auto& [place, text] : rowsOf(texts)) record += plain(place, text);
  return record;
}

// Spaces between lines are divided by 25.5.
TEST(PageWalk, putsLinesUnderEachOther) {
  const std::pair<std::string, const char*> rows[] = {
      {"a\r\nb", "0,0 a|0,227 b"},
      {"\r\n\r\nb", "0,454 b"},
      {"ab<i/>c", "0,0 ab|240,0 c"},
      {"a\rb\r\nc", "0,0 a|10,0 b|0,227 c"},
      {"<text left=10 top=20 tc=q/>\r\nc", "566,1133 q|0,0 c"},
      {"a<text left=10 top=20 tc=q/>b", "0,0 a|566,1133 q|120,0 b"},
      {"<font vs=1/>a\r\nb", "0,0 a|0,283 b"},
      {"<font hs=10/>ab<font hs=0/>c", "0,0 ab|1372,0 c"}};
  for (const auto& [bytes, texts] : rows) EXPECT_EQ(drawn(bytes), plainTexts(texts)) << bytes;
  // Other fonts and items: what of them stands at the origin, and the plain text behind.
  const std::tuple<std::string, std::string, const char*> others[] = {
      {"<font fi=1>d<font/>e", "d\" Courier New -200x0 weight 400 italic", "120,0 e"},
      {"<h1>b<h1/>\r\nc", "b\" Courier New -480x0 weight 400", "0,544 c"},
      {"\x0F-\x12+", "-\" Courier New -200x72 weight 400", "72,0 +"},
      {"<w1><font width=10/>a<w1/>", "a\" Courier New -200x400 weight 400", ""},
      {"<font o=3/>a<font o=0/>b", "a\" Courier New -200x0 weight 400 turned 2700", "0,120 b"}};
  for (const auto& [bytes, first, behind] : others)
    EXPECT_EQ(drawn(bytes), "text 0,0 \"" + first + " color 0\n" + plainTexts(behind)) << bytes;
  EXPECT_EQ(drawn("a<shape left=50 top=90 right=90 bottom=90/>b\r\nc"),
            plain("0,0", "a") + "line 2834,5102 5102,5102 pen 1 15 0 brush 0 0\n" +
                plainTexts("120,0 b|0,227 c"));
}

TEST(PageWalk, countsMarginsInMillimetresOrCells) {
  for (const auto& [left, top, place] :
       {std::tuple{3, 5, "170,283"}, {-3, -2, "318,400"}, {0, -1, "0,200"}}) {
    TestReport report("a");
    report.doc().Settings.Page.MarginLeft = left;
    report.doc().Settings.Page.MarginTop = top;
    EXPECT_EQ(drawn(report.page()), plain(place, "a"));
  }
}

// 8/48 inch are 240 twips: two rows above the page, and each empty line. Plain lines keep 227, and
// with a height for 8 lines an inch (9 points) 204.
TEST(PageWalk, rowHeightsOfTheReportSetTheGridAndEmptyLines) {
  for (const auto& [bytes, texts] : {std::pair{"\033&l8Ca\r\nb\r\n\r\nc", "480 a|707 b|1174 c"},
                                     {"a\r\n\033&l8Cb\r\n\r\nc", "480 a|707 b|1174 c"},
                                     {"\033&l8Da\r\n\r\nb\r\nc", "360 a|768 b|972 c"},
                                     {"<font vs=1/>a\r\n\r\nb", "60 a|626 b"}}) {
    TestReport report(bytes);
    report.doc().Settings.Page.MarginTop = -2;
    const std::string record = drawn(report.page());
    for (const auto& [y, letter] : rowsOf(texts))
      EXPECT_NE(record.find("," + y + " \"" + letter + "\""), std::string::npos) << record;
  }
}

TEST(PageWalk, aFormFeedInsideAPageStartsItsLowerHalf) {
  VSet settings;
  settings.Prn.VertRes = 1122;
  settings.Prn.LogPixelsY = 96;
  settings.Page.MarginTop = 10;
  VDocPage page(1, &settings);
  VCommand commands(settings, settings.Font);
  page.AddLine({"a"}, commands);
  page.AddLine({.text = "b", .afterFormFeed = true}, commands);
  page.AddLine({"c"}, commands);
  page.AddLine({.text = "d", .afterFormFeed = true}, commands);
  EXPECT_EQ(drawn(page), plainTexts("0,566 a|0,7849 b|0,8076 c|0,7849 d"));
}

TEST(PageWalk, measuresTheExtentOfTheContent) {
  TestReport report(
      "abc\r\n<text left=100 top=100 tc=far/>a\r\n<shape left=1 top=1 right=90 bottom=90/>");
  RecordingCanvas canvas;
  std::int32_t width = 0;
  std::int32_t height = 0;
  MeasurePage(report.page(), canvas, width, height);
  // Three characters wide; the third line, without a height of its own, starts 454 twips down.
  EXPECT_EQ(width, 360 / 15);
  EXPECT_EQ(height, 454 / 15);
}

TEST(PageWalk, charactersComeFromTheReportsCodePage) {
  EXPECT_EQ(drawn("\x80\xE1", 866), plain("0,0", "<410><441>"));
  EXPECT_EQ(drawn("a\xE9", 1252), plain("0,0", "a<0>"));
}

TEST(PageWalk, boxTextIsAlignedAndReadByItsCharacterSet) {
  for (const auto& [align, place] : {std::pair{"alignH=0 alignV=0", "566,566"},
                                     {"alignH=1 alignV=1", "1640,736"},
                                     {"alignH=2 alignV=2", "2714,906"},
                                     {"alignH=7 alignV=7", "566,566"}}) {
    const std::string item = std::string("<text left=10 top=10 right=50 bottom=20 ") + align;
    EXPECT_EQ(drawn(item + " tc=\xC0/>"), "clip 566,566 2834,1133\n" + plain(place, "<c0>"));
  }
  TestReport report("");
  AppOptions.FontCharset = 204;
  report.doc().Settings.Font.Reset();
  VDocPage page(1, &report.doc().Settings);
  VCommand commands(report.doc().Settings, report.doc().Settings.Font);
  page.AddLine({"<text left=10 top=10 right=50 tc=\xC0 alignV=1/>"}, commands);
  // Without a lower edge the box has no height, and the text stands about its top.
  EXPECT_EQ(drawn(page), "clip 566,566 2834,0\n" + plain("566,453", "<410>"));
}

}  // namespace
}  // namespace qor::test
