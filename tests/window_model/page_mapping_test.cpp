// Twips of the page and pixels of its view.
#include "window_model/page_mapping.h"

#include <gtest/gtest.h>

namespace qor::test {
namespace {

// A view on a display of 96 dots per inch; the printer doesn't reach so many pixels at its corner.
PageView view(std::int32_t zoom, Point unreached) {
  PageView view;
  view.zoom = zoom;
  view.screen.dpi_x = view.screen.dpi_y = 96;
  view.screen.print_left = unreached.x;
  view.screen.print_top = unreached.y;
  view.screen.print_right = 700;
  view.screen.print_bottom = 1000;
  return view;
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
    const PageMapping mapping(view(zoom, unreached), ratio);
    const Spot pixels = mapping.toPixels({1440, 720});
    EXPECT_DOUBLE_EQ(pixels.x, expected.x);
    EXPECT_DOUBLE_EQ(pixels.y, expected.y);
    for (const Spot& twips : {Spot{0, 0}, {1440, 720}, {-300.5, 12345}}) {
      const Spot back = mapping.toTwips(mapping.toPixels(twips));
      EXPECT_NEAR(back.x, twips.x, 1e-6);
      EXPECT_NEAR(back.y, twips.y, 1e-6);
    }
    // A canvas has its dots where the view has its pixels.
    const Mapping canvas = mapping.onCanvas({100, 200});
    EXPECT_DOUBLE_EQ((canvas.dpiX + canvas.originX + 100) / ratio, expected.x);
    EXPECT_DOUBLE_EQ((canvas.dpiY / 2 + canvas.originY + 200) / ratio, expected.y);
  }
  EXPECT_DOUBLE_EQ(PageMapping(view(1, {0, 0}), 1).toTwips({5, 5}).x, 0) << "all of it is a dot";
}

}  // namespace
}  // namespace qor::test
