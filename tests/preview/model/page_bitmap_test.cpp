// The dots of a view: what is drawn, where and when.
#include "preview/model/page_bitmap.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

// Counts drawings, and marks the dot where the view's pixel (1000, 1000) starts.
struct Marker {
  int drawings = 0;

  PageBitmap::Paint paint() {
    return [this](Canvas& canvas, const ViewPart& part) {
      ++drawings;
      canvas.setMapping({1440, 1440, -part.corner.x, -part.corner.y});
      const auto dot = static_cast<std::int32_t>(1000 * part.dotsPerPixel);
      canvas.setPen({PenStyle::none});
      canvas.setBrush({BrushStyle::solid, 0x0000FF});
      canvas.rectangle({dot, dot, dot + 1, dot + 1});
    };
  }
};

std::uint32_t dotAt(PageBitmap& bitmap, int x, int y) {
  return bitmap.pixels().row(y -
                             bitmap.corner().y)[static_cast<std::size_t>(x - bitmap.corner().x)] &
         0xFFFFFFU;
}

TEST(PageBitmap, SmallViewsAreDrawnOnce) {
  Marker marker;
  PageBitmap bitmap;
  bitmap.start({1200, 1100}, 1, 96, marker.paint());
  EXPECT_EQ(bitmap.pixels().width, 0);
  for (const std::int32_t top : {0, 300, 600}) bitmap.cover({0, top, 1200, top + 500});
  EXPECT_EQ(marker.drawings, 1);
  EXPECT_EQ(bitmap.pixels().width, 1200);
  EXPECT_EQ(dotAt(bitmap, 1000, 1000), 0xFF0000U);
  EXPECT_EQ(dotAt(bitmap, 1001, 1000), 0xFFFFFFU);
  bitmap.start({750, 750}, 2, 96, marker.paint());
  bitmap.cover({0, 0, 1, 1});
  EXPECT_EQ(marker.drawings, 2);
  EXPECT_EQ(bitmap.pixels().width, 1500);
}

TEST(PageBitmap, LargeViewsAreDrawnAroundWhatIsSeen) {
  Marker marker;
  PageBitmap bitmap;
  bitmap.start({30000, 40000}, 1.5, 96, marker.paint());
  bitmap.cover({900, 800, 1700, 1400});
  EXPECT_LE(bitmap.pixels().width, 1.5 * 1000 + 2);
  EXPECT_EQ(dotAt(bitmap, 1500, 1500), 0xFF0000U);
  bitmap.cover({990, 870, 1790, 1470});
  EXPECT_EQ(marker.drawings, 1) << "a little further is there already";
  bitmap.cover({29200, 39400, 30000, 40000});
  EXPECT_EQ(marker.drawings, 2);
  EXPECT_EQ(bitmap.corner().x + bitmap.pixels().width, 45000);
  EXPECT_EQ(bitmap.corner().y + bitmap.pixels().height, 60000);
}

TEST(PageBitmap, AFailedDrawingLeavesNothing) {
  PageBitmap bitmap;
  bitmap.start({100, 100}, 1, 96, [](Canvas&, const ViewPart&) { throw PictureError("no"); });
  EXPECT_THROW(bitmap.cover({0, 0, 10, 10}), PictureError);
  EXPECT_EQ(bitmap.pixels().width, 0);
}

// The dots along the top of a page 200 pixels wide, of which the printer reaches all but 10.
TEST(PageView, DrawsSheetMarginsAndPage) {
  TestReport report("<shape sh_type=2 left=0 top=0 right=10 bottom=10 bt=1 bc=Red/>");
  PageView view;
  view.screen.dpi_x = view.screen.dpi_y = 96;
  view.screen.view_width = 220;
  view.screen.view_height = 120;
  view.screen.paper_width = 200;
  view.screen.paper_height = 100;
  view.screen.print_left = view.screen.print_top = 10;
  view.screen.print_right = 190;
  view.screen.print_bottom = 90;
  view.panel = 0x332211;
  BitmapCanvas bitmap(220, 120, 96);
  const auto dot = [&](int x, int y) {
    return bitmap.pixels().row(y)[static_cast<std::size_t>(x)] & 0xFFFFFFU;
  };
  paintPage(report.page(), bitmap.canvas(), view, {});
  EXPECT_EQ(dot(0, 50), 0x000000U) << "edge of the sheet";
  EXPECT_EQ(dot(5, 50), 0xF0F0F0U) << "beyond the printer's reach";
  EXPECT_EQ(dot(100, 60), 0xFFFFFFU);
  EXPECT_EQ(dot(30, 30), 0xFF0000U)
      << "what stands on the page: 38 pixels from its printable corner";
  EXPECT_EQ(dot(60, 30), 0xFFFFFFU);
  EXPECT_EQ(dot(189, 60) & 0xFFU, 0xFFU) << "margins, dotted in blue";
  EXPECT_EQ(dot(203, 3), 0x112233U) << "the shadow starts lower";
  EXPECT_EQ(dot(215, 115), 0x112233U);
  view.show_unprintable = false;
  paintPage(report.page(), bitmap.canvas(), view, {});
  EXPECT_EQ(dot(5, 50), 0xFFFFFFU);
  view.wide = true;
  paintPage(report.page(), bitmap.canvas(), view, {});
  EXPECT_EQ(dot(203, 50), 0x112233U) << "a wide view has no shadow";
}

// Beside and below a sheet of 200 by 100 pixels at 100 percent, with gaps for the shadow.
TEST(PageView, ShadowsAreDarkerThanTheirGround) {
  struct Row {
    Color ground;
    std::uint32_t shadow;  // as pictures hold it
    std::int32_t zoom;
    double dotsPerPixel;
    int depth;  // dots
  };
  const std::vector<Row> rows = {
      {0xC0C0C0, 0x766D5C, 100, 1, 7},  {0x332211, 0x081119, 100, 1, 7},
      {0x787878, 0x3C3C3C, 100, 1, 7},  {0x202020, 0x101010, 200, 1, 14},
      {0xC0C0C0, 0x766D5C, 50, 1, 3},   {0xC0C0C0, 0x766D5C, 5, 1, 1},
      {0xC0C0C0, 0x766D5C, 100, 2, 14}, {0xC0C0C0, 0x766D5C, 200, 1.5, 21},
  };
  for (const Row& row : rows) {
    PageView view;
    view.zoom = row.zoom;
    view.panel = row.ground;
    view.show_unprintable = false;
    view.screen.paper_width = view.screen.print_right = 200;
    view.screen.paper_height = view.screen.print_bottom = 100;
    view.screen.view_width = 240;
    view.screen.view_height = 140;
    const int width = static_cast<int>(240 * row.dotsPerPixel);
    BitmapCanvas bitmap(width, static_cast<int>(140 * row.dotsPerPixel), 96);
    DrawSheet(bitmap.canvas(), view, {{0, 0}, row.dotsPerPixel});
    const auto dots = bitmap.pixels().row(static_cast<int>(50 * row.dotsPerPixel));
    const auto isShadow = [&](std::uint32_t dot) { return (dot & 0xFFFFFFU) == row.shadow; };
    EXPECT_EQ(std::count_if(dots.begin(), dots.end(), isShadow), row.depth) << row.zoom;
    EXPECT_TRUE(isShadow(dots[static_cast<std::size_t>(200 * row.dotsPerPixel)]));
  }
}

}  // namespace
}  // namespace qor::test
