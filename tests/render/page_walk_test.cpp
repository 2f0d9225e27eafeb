// Where pages put their lines and items. The outline of the base font has 2048 units to the em, an
// ascent of 1705, a descent of 615 and a width of 1229: at 10 points a row is 227 twips high and a
// character 120 wide; with a cell of 200 twips a character is 106 wide.
#include "render/page_walk.h"

#include <gtest/gtest.h>

#include "document/code_page.h"
#include "document/vcommand.h"
#include "support/recording_canvas.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

constexpr const char* kPlain = "Courier New -200x0 weight 400 color 0\n";

std::string drawn(TestReport& report, int number = 1) {
  RecordingCanvas canvas;
  LoadCodePage(report.doc().Settings.Page.BaseCodePage);
  DrawPage(report.page(number), canvas);
  return canvas.record();
}

std::string drawn(std::string_view bytes) {
  TestReport report(bytes);
  return drawn(report);
}

std::string plain(const std::string& place, const std::string& text) {
  return "text " + place + " \"" + text + "\" " + kPlain;
}

TEST(PageWalk, PutsLinesUnderEachOther) {
  struct Row {
    std::string name;
    std::string bytes;
    std::string record;
  };
  const std::string high = "Courier New -480x0 weight 400 color 0\n";
  const std::vector<Row> rows = {
      {"two lines", "a\r\nb", plain("0,0", "a") + plain("0,227", "b")},
      {"an empty line has a height", "\r\n\r\nb", plain("0,454", "b")},
      {"pieces follow each other", "ab<i/>c<font fi=1/>d",
       plain("0,0", "ab") + plain("240,0", "c") +
           "text 360,0 \"d\" Courier New -200x0 weight 400 italic color 0\n"},
      {"a line leaves the flow alone", "a<shape left=50 top=90 right=90 bottom=90/>b\r\nc",
       plain("0,0", "a") + "line 2834,5102 5102,5102 pen 1 15 0 brush 0 0\n" + plain("120,0", "b") +
           plain("0,227", "c")},
      {"overprint", "a\rb\r\nc", plain("0,0", "a") + plain("10,0", "b") + plain("0,227", "c")},
      {"tallest text counts", "a<h1>b<h1/>\r\nc",
       plain("0,0", "a") + "text 120,0 \"b\" " + high + plain("0,544", "c")},
      {"placed items have no height", "<text left=10 top=20 tc=q/>\r\nc",
       plain("566,1133", "q") + plain("0,0", "c")},
      {"a placed text leaves the flow alone", "a<text left=10 top=20 tc=q/>b",
       plain("0,0", "a") + plain("566,1133", "q") + plain("120,0", "b")},
      {"extra height, divided by 25.5", "<font vs=1/>a\r\nb",
       plain("0,0", "a") + plain("0,283", "b")},
      {"extra width", "<font hs=10/>ab<font hs=0/>c", plain("0,0", "ab") + plain("1372,0", "c")},
      {"condensed",
       "\x0F"
       "a\x12"
       "b",
       "text 0,0 \"a\" Courier New -200x72 weight 400 color 0\n" + plain("72,0", "b")},
      {"width and factor", "<w1><font width=10/>a",
       "text 0,0 \"a\" Courier New -200x400 weight 400 color 0\n"},
      {"turned text moves the position along", "<font o=3/>a<font o=0/>b",
       "text 0,0 \"a\" Courier New -200x0 weight 400 turned 2700 color 0\n" + plain("0,120", "b")},
  };
  for (const Row& row : rows) EXPECT_EQ(drawn(row.bytes), row.record) << row.name;
}

TEST(PageWalk, CountsMarginsInMillimetresOrCells) {
  struct Row {
    int left;
    int top;
    const char* place;
  };
  for (const Row& row : {Row{3, 5, "170,283"}, Row{-3, -2, "318,400"}, Row{0, -1, "0,200"}}) {
    TestReport report("a");
    report.doc().Settings.Page.MarginLeft = row.left;
    report.doc().Settings.Page.MarginTop = row.top;
    EXPECT_EQ(drawn(report), plain(row.place, "a"));
  }
}

// 8/48 inch are 240 twips: two rows above the page, and each empty line. Plain lines keep 227, and
// with a height for 8 lines an inch (9 points) 204.
TEST(PageWalk, RowHeightsOfTheReportSetTheGridAndEmptyLines) {
  struct Row {
    const char* bytes;
    std::vector<int> lines;  // where each letter stands
  };
  for (const Row& row : {Row{"\033&l8Ca\r\nb\r\n\r\nc", {480, 707, 1174}},
                         Row{"a\r\n\033&l8Cb\r\n\r\nc", {480, 707, 1174}},
                         Row{"\033&l8Da\r\n\r\nb\r\nc", {360, 768, 972}},
                         Row{"<font vs=1/>a\r\n\r\nb", {60, 626}}}) {
    TestReport report(row.bytes);
    report.doc().Settings.Page.MarginTop = -2;
    const std::string record = drawn(report);
    char letter = 'a';
    for (const int y : row.lines) {
      const std::string text = "," + std::to_string(y) + " \"" + letter++ + "\"";
      EXPECT_NE(record.find(text), std::string::npos) << row.bytes << text << "\n" << record;
    }
  }
}

TEST(PageWalk, AFormFeedInsideAPageStartsItsLowerHalf) {
  VSet settings;
  settings.Prn.VertRes = 1122;
  settings.Prn.LogPixelsY = 96;
  settings.Page.MarginTop = 10;
  VDocPage page(1, &settings);
  VCommand commands(settings, settings.Font);
  page.AddLine("a", commands);
  page.AddLine("b", commands).AfterFormFeed = true;
  page.AddLine("c", commands);
  page.AddLine("d", commands).AfterFormFeed = true;
  RecordingCanvas canvas;
  DrawPage(page, canvas);
  EXPECT_EQ(canvas.record(), plain("0,566", "a") + plain("0,7849", "b") + plain("0,8076", "c") +
                                 plain("0,7849", "d"));
}

TEST(PageWalk, MeasuresTheExtentOfTheContent) {
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

TEST(PageWalk, CharactersComeFromTheReportsCodePage) {
  TestReport cyrillic("\x80\xE1", 866);
  EXPECT_EQ(drawn(cyrillic), plain("0,0", "<410><441>"));
  TestReport latin("a\xE9", 1252);
  EXPECT_EQ(drawn(latin), plain("0,0", "a<0>"));
}

TEST(PageWalk, BoxTextIsAlignedAndReadByItsCharacterSet) {
  struct Row {
    const char* align;
    const char* place;
  };
  for (const Row& row :
       {Row{"alignH=0 alignV=0", "566,566"}, Row{"alignH=1 alignV=1", "1640,736"},
        Row{"alignH=2 alignV=2", "2714,906"}, Row{"alignH=7 alignV=7", "566,566"}}) {
    const std::string item = std::string("<text left=10 top=10 right=50 bottom=20 ") + row.align;
    EXPECT_EQ(drawn(item + " tc=\xC0/>"), "clip 566,566 2834,1133\n" + plain(row.place, "<c0>"));
  }
  TestReport report("");
  AppOptions.FontCharset = 204;
  report.doc().Settings.Font.Reset();
  VDocPage page(1, &report.doc().Settings);
  VCommand commands(report.doc().Settings, report.doc().Settings.Font);
  page.AddLine("<text left=10 top=10 right=50 tc=\xC0 alignV=1/>", commands);
  RecordingCanvas canvas;
  DrawPage(page, canvas);
  // Without a lower edge the box has no height, and the text stands about its top.
  EXPECT_EQ(canvas.record(), "clip 566,566 2834,0\n" + plain("566,453", "<410>"));
}

}  // namespace
}  // namespace qor::test
