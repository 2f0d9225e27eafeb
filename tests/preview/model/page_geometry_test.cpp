// Where sheets and pages stand on the screen. The printer has 600 dots per inch and A4 paper of
// 4960 by 7016 dots, of which it reaches all but 100 at each side; the display has 96.
#include <gtest/gtest.h>

#include "preview/model/page_layout.h"
#include "preview/model/page_moves.h"
#include "preview/model/sheet_view.h"
#include "preview/model/zoom_list.h"
#include "settings/print_scale.h"

namespace qor::test {
namespace {

VSetPrn printer() {
  VSetPrn measures;
  measures.LogPixelsX = measures.LogPixelsY = 600;
  measures.PhysicalWidth = 4960;
  measures.PhysicalHeight = 7016;
  measures.PhysicalOffsetX = measures.PhysicalOffsetY = 100;
  measures.HorzRes = 4760;
  measures.VertRes = 6816;
  return measures;
}

VSetPage page() {
  VSetPage options;
  options.MarginLeft = 10;
  options.MarginTop = 20;
  return options;
}

constexpr ScreenArea kArea = {{1000, 700}, 96, 96};

std::string text(const VSetScr& screen) {
  std::string line;
  const auto add = [&line](const char* name, std::int32_t x, std::int32_t y) {
    line += std::string(name) + " " + std::to_string(x) + "," + std::to_string(y) + " ";
  };
  add("dpi", screen.dpi_x, screen.dpi_y);
  add("ref", screen.ref_dpi_x, screen.ref_dpi_y);
  add("view", screen.view_width, screen.view_height);
  add("at", screen.origin_x, screen.origin_y);
  add("paper", screen.paper_width, screen.paper_height);
  add("print", screen.print_left, screen.print_top);
  add("to", screen.print_right, screen.print_bottom);
  add("margins", screen.margin_left, screen.margin_top);
  return line;
}

TEST(PageGeometry, NormalSheetStandsInTheMiddleOrBehindAGap) {
  struct Row {
    std::int32_t zoom;
    ScreenArea area;
    std::int32_t percent;
    std::string sheet;
  };
  const std::vector<Row> rows = {
      {100, kArea, 100,
       "dpi 96,96 ref 600,600 view 813,1142 at 92,10 paper 793,1122 print 16,16 to 777,1106 "
       "margins 37,75 "},
      {0, kArea, 100,
       "dpi 96,96 ref 600,600 view 813,1142 at 92,10 paper 793,1122 print 16,16 to 777,1106 "
       "margins 37,75 "},
      {50, kArea, 50,
       "dpi 96,96 ref 1200,1200 view 406,571 at 296,63 paper 396,561 print 8,8 to 388,553 "
       "margins 37,75 "},
      {5, kArea, 5,
       "dpi 96,96 ref 12000,12000 view 39,56 at 479,321 paper 39,56 print 0,0 to 38,54 "
       "margins 37,75 "},
      {kFitWidth,
       {{800, 700}, 96, 96},
       98,
       "dpi 96,96 ref 612,612 view 795,1118 at 1,9 paper 777,1100 print 15,15 to 761,1083 "
       "margins 37,75 "},
      {kFitHeight, kArea, 62,
       "dpi 96,96 ref 967,967 view 504,707 at 247,6 paper 492,695 print 9,9 to 481,685 "
       "margins 37,75 "},
      {kFitWidth,
       {{1, 1}, 96, 96},
       1,
       "dpi 96,96 ref 60000,60000 view 7,11 at 0,0 paper 7,11 print 0,0 to 7,10 margins 37,75 "},
  };
  for (const Row& row : rows) {
    std::int32_t zoom = row.zoom;
    EXPECT_EQ(text(normalSheet(page(), printer(), row.area, zoom)), row.sheet) << row.zoom;
    EXPECT_EQ(zoom, row.percent);
  }
}

TEST(PageGeometry, WideViewIsAsLargeAsPaperAndContent) {
  for (std::int32_t zoom : {100, kFitWidth, kFitHeight}) {
    EXPECT_EQ(text(wideSheet(page(), printer(), kArea, {1700, 400}, zoom)),
              "dpi 96,96 ref 600,600 view 1700,1122 at 0,0 paper 793,1122 print 0,0 to 1700,1122 "
              "margins 37,75 ");
    EXPECT_EQ(zoom, 100);
  }
  std::int32_t half = 50;
  const VSetScr sheet = wideSheet(page(), printer(), kArea, {100, 2001}, half);
  EXPECT_EQ(sheet.view_width, 396);
  EXPECT_EQ(sheet.view_height, 1000);
}

TEST(PageGeometry, ScaledViewChangesTheSheetOnly) {
  const VSetScr sheet = scaledSheet(page(), printer(), kArea, 200);
  EXPECT_EQ(text(sheet),
            "dpi 48,48 ref 300,300 view 436,601 at 281,48 paper 396,561 print 8,8 to 388,553 "
            "margins 37,75 ");
}

TEST(PageGeometry, APrinterThatTellsNothingHasNoSheet) {
  std::int32_t zoom = kFitWidth;
  const VSetScr sheet = normalSheet({}, {}, kArea, zoom);
  EXPECT_EQ(sheet.paper_width, 0);
  EXPECT_EQ(zoom, 1);
}

TEST(PageGeometry, BarsTakeRoomWhereTheSheetIsLarger) {
  struct Row {
    Extent sheet;
    Extent left;
  };
  const std::vector<Row> rows = {{{900, 600}, {1000, 700}},  {{1000, 700}, {1000, 700}},
                                 {{985, 701}, {985, 700}},   {{1001, 685}, {1000, 685}},
                                 {{1200, 600}, {1000, 685}}, {{900, 800}, {985, 700}},
                                 {{1200, 690}, {985, 685}},  {{990, 800}, {985, 685}}};
  for (const Row& row : rows) {
    const ScreenArea left = areaBesideBars(kArea, row.sheet, 15);
    EXPECT_EQ(left.client.Width, row.left.Width) << row.sheet.Width;
    EXPECT_EQ(left.client.Height, row.left.Height) << row.sheet.Width;
  }
}

std::string places(const Extent& view, const Extent& client, std::int32_t first,
                   std::int32_t total) {
  const auto laidOut = layOutPages(view, client, first, total);
  if (!laidOut) return "nothing";
  std::string text;
  for (const PagePlace& place : *laidOut) {
    text += std::to_string(place.number) + " at " + std::to_string(place.corner.x) + "," +
            std::to_string(place.corner.y) + " ";
  }
  return text;
}

TEST(PageGeometry, SeveralPagesStandInRows) {
  const Extent view = {300, 400};
  EXPECT_EQ(places(view, {1000, 900}, 3, 20),
            "3 at 12,17 4 at 337,17 5 at 662,17 6 at 12,450 7 at 337,450 8 at 662,450 ");
  // The rows and columns that are left stand in the middle.
  EXPECT_EQ(places(view, {1300, 900}, 1, 3), "1 at 170,233 2 at 490,233 3 at 810,233 ");
  EXPECT_EQ(places(view, {1000, 900}, 17, 20),
            "17 at 12,17 18 at 337,17 19 at 662,17 20 at 12,450 ");
  // Two pages must leave room.
  EXPECT_EQ(places(view, {600, 800}, 1, 20), "");
  EXPECT_EQ(places(view, {601, 500}, 1, 20), "1 at 0,50 2 at 300,50 ");
  // A page that is higher than the area starts with it.
  EXPECT_EQ(places({450, 1142}, {1000, 900}, 1, 20), "1 at 17,0 2 at 500,0 ");
  EXPECT_EQ(places(view, {1000, 900}, 21, 20), "nothing");
  EXPECT_EQ(places(view, {1000, 900}, 1, 0), "nothing");
  EXPECT_EQ(places({0, 0}, {1000, 900}, 1, 5), "");
}

TEST(PageGeometry, NumbersStandBesideSheetsWhereThereIsRoom) {
  struct Row {
    const char* what;
    Extent board;
    std::size_t index;
    Extent label;
    Point corner;
  };
  // Two columns and two rows of sheets of 100 by 200 pixels.
  const std::vector<PagePlace> pages = {
      {1, {10, 0}}, {2, {150, 0}}, {3, {10, 230}}, {4, {150, 230}}};
  const std::vector<Row> rows = {
      {"in the 30 pixels between rows", {260, 460}, 0, {20, 16}, {50, 207}},
      {"not far from its sheet", {260, 500}, 3, {20, 16}, {190, 438}},
      {"beside the sheet, where the last row has no room below",
       {260, 434},
       2,
       {20, 16},
       {118, 414}},
      {"on the sheet, where it has none at all", {252, 434}, 3, {20, 16}, {228, 412}},
      {"too high for the room between rows", {260, 460}, 1, {20, 27}, {228, 171}},
  };
  for (const Row& row : rows) {
    const Point corner = numberCorner(pages, row.index, {100, 200}, row.board, row.label);
    EXPECT_EQ(corner.x, row.corner.x) << row.what;
    EXPECT_EQ(corner.y, row.corner.y) << row.what;
  }
}

TEST(PageGeometry, MovesStopAtTheEnds) {
  struct Row {
    PageMove move;
    std::int32_t current;
    std::int32_t total;
    std::int32_t onView;
    std::int32_t to;
  };
  const std::vector<Row> rows = {
      {PageMove::first, 7, 10, 1, 1},     {PageMove::previous, 7, 10, 1, 6},
      {PageMove::previous, 1, 10, 1, 1},  {PageMove::next, 9, 10, 1, 10},
      {PageMove::next, 10, 10, 1, 10},    {PageMove::last, 2, 10, 1, 10},
      {PageMove::previous, 9, 20, 8, 1},  {PageMove::previous, 8, 20, 8, 1},
      {PageMove::previous, 10, 20, 8, 2}, {PageMove::next, 1, 20, 8, 9},
      {PageMove::next, 13, 20, 8, 13},    {PageMove::next, 15, 20, 8, 23},
      {PageMove::last, 1, 20, 8, 13},     {PageMove::last, 1, 3, 8, 1}};
  for (const Row& row : rows) {
    EXPECT_EQ(movedPage(row.move, row.current, row.total, row.onView), row.to)
        << static_cast<int>(row.move) << " from " << row.current;
  }
  EXPECT_EQ(leapOn(5, 10), 10);
  EXPECT_EQ(leapOn(1, 10), 9);
  EXPECT_EQ(leapOn(2, 10), 10);
  EXPECT_EQ(leapBack(9), 1);
  EXPECT_EQ(leapBack(5), 1);
  EXPECT_EQ(leapBack(20), 12);
}

TEST(PageGeometry, ViewsOpenThePrinterAtAScale) {
  // A4: 793 pixels of paper against a page of 1586; the printer's sheet has 793 pixels, too.
  VSetPage a4;
  EXPECT_EQ(previewPrintScale({96, 100, 1586}, a4, printer()), 47);
  EXPECT_EQ(ComputePrintScale({96, 100, 1586}, a4, printer()), 47);
  EXPECT_EQ(previewPrintScale({96, 100, 400}, a4, printer()), 195);
  EXPECT_EQ(previewPrintScale({96, kFitWidth, 400}, a4, printer()), -2);
  EXPECT_EQ(previewPrintScale({96, 100, 0}, a4, printer()), std::nullopt);
  VSetPage letter = a4;
  letter.PaperSize = 1;
  EXPECT_EQ(previewPrintScale({96, 100, 1586}, letter, printer()), 50);
}

}  // namespace
}  // namespace qor::test
