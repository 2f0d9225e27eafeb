// Where sheets, pages and what they bear stand on the screen, and the zooms that fit them. The
// printer has 600 dots per inch and A4 paper of 4960 by 7016 dots, of which it reaches all but 100
// at each side; the display has 96: at z percent a sheet takes 7.936 z by 11.2256 z pixels, and its
// gaps twice a tenth of z.
#include "support/test.h"
#include "window_model/page_layout.h"
#include "window_model/page_mapping.h"
#include "window_model/zoom_fit.h"

namespace qor::test {
namespace {

// Resolution 600, 4960 by 7016 dots behind an offset of 100, of which 4760 by 6816 are printable.
const VSetPrn kPrinter = {{0, 600, 600, 4760, 6816, 0, 0, 4960, 7016, 100, 100}, 0, 0, {}, {}};
constexpr ScreenArea kArea = {{1000, 700}};
constexpr std::int32_t kBar = 15;

const VSetPage kPage = [] {
  VSetPage page;
  page.MarginLeft = 10;
  page.MarginTop = 20;
  return page;
}();

using Numbers = std::vector<std::int32_t>;

// Across and down in turn: resolution, reference, view, place, paper, printable area, margins.
Numbers numbers(const VSetScr& s) {
  return {s.dpi_x,       s.dpi_y,        s.ref_dpi_x,   s.ref_dpi_y,    s.view_width, s.view_height,
          s.origin_x,    s.origin_y,     s.paper_width, s.paper_height, s.print_left, s.print_top,
          s.print_right, s.print_bottom, s.margin_left, s.margin_top};
}

TEST(PageGeometry, normalSheetStandsInTheMiddleOrBehindAGap) {
  // A zoom (-1 and -2 fit), the width of the area, and what comes of them.
  const std::tuple<std::int32_t, std::int32_t, std::int32_t, Numbers> rows[] = {
      {0, 1000, 100, {96, 96, 600, 600, 813, 1142, 92, 10, 793, 1122, 16, 16, 777, 1106, 37, 75}},
      {50, 1000, 50, {96, 96, 1200, 1200, 406, 571, 296, 63, 396, 561, 8, 8, 388, 553, 37, 75}},
      {5, 1000, 5, {96, 96, 12000, 12000, 39, 56, 479, 321, 39, 56, 0, 0, 38, 54, 37, 75}},
      {-1, 800, 98, {96, 96, 612, 612, 795, 1118, 1, 9, 777, 1100, 15, 15, 761, 1083, 37, 75}},
      {-2, 1000, 62, {96, 96, 967, 967, 504, 707, 247, 6, 492, 695, 9, 9, 481, 685, 37, 75}},
      {-1, 1, 1, {96, 96, 60000, 60000, 7, 11, 0, 343, 7, 11, 0, 0, 7, 10, 37, 75}},
  };
  for (const auto& [asked, width, percent, sheet] : rows) {
    std::int32_t zoom = asked;
    EXPECT_EQ(numbers(normalSheet(kPage, kPrinter, {{width, 700}}, zoom)), sheet) << asked;
    EXPECT_EQ(zoom, percent);
  }
  std::int32_t zoom = kFitWidth;
  EXPECT_EQ(normalSheet({}, {}, kArea, zoom).paper_width, 0) << "a printer that tells nothing";
  EXPECT_EQ(zoom, 1);
  EXPECT_EQ(numbers(scaledSheet(kPage, kPrinter, kArea, 200)),
            Numbers({48, 48, 300, 300, 436, 601, 281, 48, 396, 561, 8, 8, 388, 553, 37, 75}));
}

TEST(PageGeometry, wideViewIsAsLargeAsPaperAndContent) {
  // Zoom and content, and what comes of them.
  const std::tuple<std::int32_t, std::int32_t, Extent, Numbers> rows[] = {
      {kFitWidth,
       100,
       {1700, 400},
       {96, 96, 600, 600, 1700, 1122, 0, 0, 793, 1122, 0, 0, 1700, 1122, 37, 75}},
      {50,
       50,
       {100, 2001},
       {96, 96, 1200, 1200, 396, 1000, 0, 0, 396, 561, 0, 0, 396, 1000, 37, 75}}};
  for (const auto& [asked, percent, content, sheet] : rows) {
    std::int32_t zoom = asked;
    EXPECT_EQ(numbers(wideSheet(kPage, kPrinter, kArea, content, zoom)), sheet);
    EXPECT_EQ(zoom, percent);
  }
}

TEST(PageGeometry, barsTakeRoomWhereTheSheetIsLarger) {
  const std::pair<Extent, Numbers> rows[] = {{{900, 600}, {1000, 700}},  {{1000, 700}, {1000, 700}},
                                             {{985, 701}, {985, 700}},   {{1001, 685}, {1000, 685}},
                                             {{1200, 600}, {1000, 685}}, {{900, 800}, {985, 700}},
                                             {{1200, 690}, {985, 685}},  {{990, 800}, {985, 685}}};
  for (const auto& [sheet, left] : rows) {
    const Extent client = areaBesideBars(kArea, sheet, kBar).client;
    EXPECT_EQ(Numbers({client.Width, client.Height}), left) << sheet.Width;
  }
}

TEST(ZoomFit, leavesNoBars) {
  // The area, the content of a wide view, none for a sheet, and the percentages for the whole
  // width and the whole page.
  const std::tuple<Extent, Extent, std::int32_t, std::int32_t> rows[] = {
      {{1000, 700}, {}, 121, 61},  // 985 beside a bar hold 960 and 24, 700 hold 684 and 12
      {{300, 2000}, {}, 37, 37},   // 300 hold 293 and 6
      {{800, 1118}, {}, 98, 98},   // exactly as high
      {{800, 1117}, {}, 97, 97},   // the bar at the right would call for one below
      {{1, 1}, {}, 1, 1},
      {{1000, 700}, {1700, 400}, 58, 58},   // 58 times 17 are 986, and no bar
      {{1000, 700}, {1700, 4000}, 57, 17},  // 57 times 17 beside a bar
      {{1000, 700}, {100, 100}, 124, 62},   // the paper, where the content is smaller
  };
  for (const auto& [area, content, wholeWidth, wholePage] : rows) {
    for (const auto& [zoom, percent] :
         {std::pair(kWholeWidth, wholeWidth), {kWholePage, wholePage}, {75, 75}, {0, 0}})
      EXPECT_EQ(content.Width == 0 ? fittedToSheet(zoom, {}, kPrinter, {area}, kBar)
                                   : fittedToContent(zoom, {}, kPrinter, {area}, content, kBar),
                percent);
  }
  EXPECT_EQ(fittedToSheet(kWholePage, {}, {}, kArea, kBar), 100) << "no paper";
}

TEST(PageGeometry, severalPagesStandInRows) {
  // A page, the area, the first page and their number, and where they stand.
  const std::tuple<Extent, Extent, std::int32_t, std::int32_t, const char*> rows[] = {
      {{300, 400}, {1000, 900}, 3, 20, "3:12,17 4:337,17 5:662,17 6:12,450 7:337,450 8:662,450 "},
      // The rows and columns that are left stand in the middle.
      {{300, 400}, {1300, 900}, 1, 3, "1:170,233 2:490,233 3:810,233 "},
      {{300, 400}, {1000, 900}, 17, 20, "17:12,17 18:337,17 19:662,17 20:12,450 "},
      // Two pages must leave room.
      {{300, 400}, {600, 800}, 1, 20, ""},
      {{300, 400}, {601, 500}, 1, 20, "1:0,50 2:300,50 "},
      // A page that is higher than the area starts with it.
      {{450, 1142}, {1000, 900}, 1, 20, "1:17,0 2:500,0 "},
      {{300, 400}, {1000, 900}, 21, 20, "0:0,0 "},
      {{0, 0}, {1000, 900}, 1, 5, ""}};
  for (const auto& [page, area, first, total, expected] : rows) {
    std::ostringstream places;
    for (const auto& [number, corner] :
         layOutPages(page, area, first, total).value_or(std::vector<PagePlace>{{0, {}}}))
      places << number << ":" << corner.x << "," << corner.y << " ";
    EXPECT_EQ(places.str(), expected);
  }
}

TEST(PageGeometry, numbersStandBesideSheetsWhereThereIsRoom) {
  // The board, a page, the height of its label, and where that stands.
  const std::tuple<const char*, Extent, std::size_t, std::int32_t, Point> rows[] = {
      {"in the 30 pixels between rows", {260, 460}, 0, 16, {50, 207}},
      {"not far from its sheet", {260, 500}, 3, 16, {190, 438}},
      {"beside it, where the last row has no room below", {260, 434}, 2, 16, {118, 414}},
      {"on the sheet, where it has none at all", {252, 434}, 3, 16, {228, 412}},
      {"too high for the room between rows", {260, 460}, 1, 27, {228, 171}},
  };
  // Two columns and two rows of sheets of 100 by 200 pixels.
  const std::vector<PagePlace> pages = {
      {1, {10, 0}}, {2, {150, 0}}, {3, {10, 230}}, {4, {150, 230}}};
  for (const auto& [what, board, index, high, corner] : rows)
    EXPECT_EQ(numberCorner(pages, index, {100, 200}, board, {20, high}), corner) << what;
}

TEST(PageMapping, leadsThereAndBack) {
  // Zoom, dots a pixel, the corner of what is printed; and where the twips (1440, 720) stand.
  const std::tuple<std::int32_t, double, Point, Spot> rows[] = {
      {100, 1, {0, 0}, {96, 48}},        {100, 1, {16, 32}, {112, 80}},
      {50, 1, {8, 16}, {56, 40}},        {200, 2, {32, 64}, {224, 160}},
      {100, 1.5, {16, 32}, {112, 80}},   {12, 1, {1, 3}, {12, 8.5}},
      {100, 1.25, {3, 3}, {99.2, 51.2}}, {500, 1, {-5, 0}, {475, 240}}};
  for (const auto& [zoom, ratio, unreached, expected] : rows) {
    SCOPED_TRACE(testing::Message() << zoom << " " << ratio);
    const PageMapping mapping(
        {{96, 96, 0, 0, 0, 0, 0, 0, 0, 0, unreached.x, unreached.y, 700, 1000}, zoom}, ratio);
    const Spot pixels = mapping.toPixels({1440, 720});
    EXPECT_DOUBLE_EQ(pixels.x, expected.x);
    EXPECT_DOUBLE_EQ(pixels.y, expected.y);
    EXPECT_NEAR(mapping.toTwips(pixels).x, 1440, 1e-6);
    EXPECT_NEAR(mapping.toTwips(pixels).y, 720, 1e-6);
    // A canvas has its dots where the view has its pixels.
    const Mapping canvas = mapping.onCanvas({100, 200});
    EXPECT_DOUBLE_EQ((canvas.dpiX + canvas.originX + 100) / ratio, expected.x);
    EXPECT_DOUBLE_EQ((canvas.dpiY / 2 + canvas.originY + 200) / ratio, expected.y);
  }
  EXPECT_DOUBLE_EQ(PageMapping({{96, 96}, 1}, 1).toTwips({5, 5}).x, 0) << "all of it is a dot";
}

}  // namespace
}  // namespace qor::test
