// The dots of a view: what is drawn, where and when.
#include "window_model/page_bitmap.h"

#include "support/test.h"

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

// A sheet of 200 by 100 pixels with gaps for the shadow. The printer reaches all but 10 pixels, and
// twice that at the top.
TEST(PageView, drawsSheetMarginsAndPage) {
  TestReport report("<shape sh_type=2 left=0 top=0 right=10 bottom=10 bt=1 bc=Red/>");
  PageView view = {{96, 96, 0, 0, 140, 240, 0, 0, 200, 100, 10, 20, 190, 90}};
  BitmapCanvas bitmap(480, 280, 96);
  int ratio = 1;
  const auto paint = [&] { paintPage(report.page(), bitmap.canvas(), view, {{}, double(ratio)}); };
  const auto dot = [&](int x, int y) {
    return bitmap.pixels().row(y * ratio)[static_cast<std::size_t>(x * ratio)] & 0xFFFFFFU;
  };
  // The ground, as pictures hold it, its shadow, the zoom, and the depth of the shadow.
  const std::tuple<Color, std::uint32_t, std::uint32_t, std::int32_t, int> rows[] = {
      {0xC0C0C0, 0xC0C0C0, 0x766D5C, 5, 1},
      {0x787878, 0x787878, 0x3C3C3C, 50, 3},
      {0x332211, 0x112233, 0x081119, 100, 7}};
  for (const auto& [ground, panel, shadow, zoom, depth] : rows) {
    view.panel = ground;
    view.zoom = zoom;
    for (ratio = 2; ratio >= 1; --ratio) {
      paint();
      // The sheet's edge; beyond the printer's reach; the page; the shadow, which starts lower.
      for (const auto& [x, y, colour] : {std::tuple(0, 50, 0x000000U),
                                         {5, 50, 0xF0F0F0U},
                                         {60, 54, 0xFFFFFFU},
                                         {203, 0, panel},
                                         {199 + depth, 50, shadow},
                                         {200 + depth, 50, panel}})
        EXPECT_EQ(dot(x, y), colour) << x << " " << y << " " << zoom;
    }
  }
  ratio = 1;
  EXPECT_EQ(dot(30, 54), 0xFF0000U) << "what is 38 pixels from the printable corner";
  int blue = 0;
  for (int x = 0; x < 240; ++x) blue += dot(x, 20) == 0x0000FF ? 1 : 0;
  EXPECT_NEAR(blue, 90, 45) << "the margins of 180 pixels, dotted";
  view.show_unprintable = false;
  view.wide = true;
  paint();
  EXPECT_EQ(dot(5, 50), 0xFFFFFFU);
  EXPECT_EQ(dot(203, 50), 0x112233U) << "a wide view has no shadow";
}

}  // namespace
}  // namespace qor::test
