// The dots of a view: what is drawn, where and when.
#include "window_model/page_bitmap.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

// Counts drawings, and marks the dot where the view's pixel (1000, 1000) starts.
PageBitmap::Paint marking(int& drawings) {
  return [&drawings](Canvas& canvas, const ViewPart& part) {
    ++drawings;
    canvas.setMapping({1440, 1440, -part.corner.x, -part.corner.y});
    const auto dot = static_cast<std::int32_t>(1000 * part.dotsPerPixel);
    canvas.setPen({PenStyle::none});
    canvas.setBrush({BrushStyle::solid, 0x0000FF});
    canvas.rectangle({dot, dot, dot + 1, dot + 1});
  };
}

std::uint32_t dotAt(PageBitmap& bitmap, int x, int y) {
  const auto [left, top] = bitmap.corner();
  return bitmap.pixels().row(y - top)[static_cast<std::size_t>(x - left)] & 0xFFFFFFU;
}

TEST(PageBitmap, smallViewsAreDrawnOnce) {
  int drawings = 0;
  PageBitmap bitmap;
  bitmap.start({1200, 1100}, 1, 96, marking(drawings));
  EXPECT_EQ(bitmap.pixels().width, 0);
  for (const std::int32_t top : {0, 300, 600}) bitmap.cover({0, top, 1200, top + 500});
  EXPECT_EQ(drawings, 1);
  EXPECT_EQ(bitmap.pixels().width, 1200);
  EXPECT_EQ(dotAt(bitmap, 1000, 1000), 0xFF0000U);
  EXPECT_EQ(dotAt(bitmap, 1001, 1000), 0xFFFFFFU);
  bitmap.start({750, 750}, 2, 96, marking(drawings));
  bitmap.cover({0, 0, 1, 1});
  EXPECT_EQ(drawings, 2);
  EXPECT_EQ(bitmap.pixels().width, 1500);
}

TEST(PageBitmap, largeViewsAreDrawnAroundWhatIsSeen) {
  int drawings = 0;
  PageBitmap bitmap;
  bitmap.start({30000, 40000}, 1.5, 96, marking(drawings));
  bitmap.cover({900, 800, 1700, 1400});
  EXPECT_LE(bitmap.pixels().width, 1.5 * 1000 + 2);
  EXPECT_EQ(dotAt(bitmap, 1500, 1500), 0xFF0000U);
  bitmap.cover({990, 870, 1790, 1470});
  EXPECT_EQ(drawings, 1) << "a little further is there already";
  bitmap.cover({29200, 39400, 30000, 40000});
  EXPECT_EQ(drawings, 2);
  EXPECT_EQ(bitmap.corner().x + bitmap.pixels().width, 45000);
  EXPECT_EQ(bitmap.corner().y + bitmap.pixels().height, 60000);
  bitmap.start({100, 100}, 1, 96, [](Canvas&, const ViewPart&) { throw PictureError("no"); });
  EXPECT_THROW(bitmap.cover({0, 0, 10, 10}), PictureError);
  EXPECT_EQ(bitmap.pixels().width, 0);
}

// A sheet of 200 by 100 pixels with gaps for the shadow. The printer reaches all but so much, and
// twice that at the top.
PageView sheetView(std::int32_t unreached) {
  return {{96, 96, 0, 0, 140, 240, 0, 0, 200, 100, unreached, 2 * unreached, 200 - unreached,
           100 - unreached}};
}

TEST(PageView, drawsSheetMarginsAndPage) {
  TestReport report("<shape sh_type=2 left=0 top=0 right=10 bottom=10 bt=1 bc=Red/>");
  PageView view = sheetView(10);
  view.panel = 0x332211;
  BitmapCanvas bitmap(240, 140, 96);
  const auto paint = [&] { paintPage(report.page(), bitmap.canvas(), view, {}); };
  const auto dot = [&](int x, int y) {
    return bitmap.pixels().row(y)[static_cast<std::size_t>(x)] & 0xFFFFFFU;
  };
  // The edge of the sheet; beyond the printer's reach; what stands on the page, 38 pixels from its
  // printable corner; beside that; and the shadow, which starts lower.
  const std::tuple<int, int, std::uint32_t> dots[] = {
      {0, 50, 0x000000},   {5, 50, 0xF0F0F0},  {30, 54, 0xFF0000},  {60, 54, 0xFFFFFF},
      {100, 60, 0xFFFFFF}, {203, 3, 0x112233}, {215, 115, 0x112233}};
  paint();
  for (const auto& [x, y, colour] : dots) EXPECT_EQ(dot(x, y), colour) << x << " " << y;
  EXPECT_EQ(dot(189, 60) & 0xFFU, 0xFFU) << "margins, dotted in blue";
  view.show_unprintable = false;
  paint();
  EXPECT_EQ(dot(5, 50), 0xFFFFFFU);
  view.wide = true;
  paint();
  EXPECT_EQ(dot(203, 50), 0x112233U) << "a wide view has no shadow";
}

TEST(PageView, shadowsAreDarkerThanTheirGround) {
  // The ground and its shadow, as pictures hold it; zoom, dots per pixel, and dots of depth.
  const std::tuple<Color, std::uint32_t, std::int32_t, double, int> rows[] = {
      {0xC0C0C0, 0x766D5C, 100, 1, 7},  {0x332211, 0x081119, 100, 1, 7},
      {0x787878, 0x3C3C3C, 100, 1, 7},  {0x202020, 0x101010, 200, 1, 14},
      {0xC0C0C0, 0x766D5C, 50, 1, 3},   {0xC0C0C0, 0x766D5C, 5, 1, 1},
      {0xC0C0C0, 0x766D5C, 100, 2, 14}, {0xC0C0C0, 0x766D5C, 200, 1.5, 21},
  };
  for (const auto& [ground, shadow, zoom, ratio, depth] : rows) {
    PageView view = sheetView(0);
    view.zoom = zoom;
    view.panel = ground;
    BitmapCanvas bitmap(static_cast<int>(240 * ratio), static_cast<int>(140 * ratio), 96);
    DrawSheet(bitmap.canvas(), view, {{0, 0}, ratio});
    int found = 0;
    for (const std::uint32_t dot : bitmap.pixels().row(static_cast<int>(50 * ratio)))
      found += (dot & 0xFFFFFFU) == shadow ? 1 : 0;
    EXPECT_EQ(found, depth) << zoom;
  }
}

}  // namespace
}  // namespace qor::test
