// Where pictures of 100 by 50 dots lie, by hand.
#include "render/image_placing.h"

#include <gtest/gtest.h>

namespace qor::test {
namespace {

TEST(ImagePlacing, FollowsTheStretchMode) {
  struct Row {
    int mode;
    Rect box;
    const char* place;
  };
  const Row rows[] = {
      {0, {100, 200, 9, 9}, "100,200 1600,950"},
      {1, {100, 200, 1100, 700}, "100,200 1100,700"},
      {2, {100, 200, 1100, 700}, "100,200 1100,700"},
      {2, {100, 200, 1100, 1201}, "100,450 1100,950"},
      {2, {0, 0, 1001, 100}, "400,0 600,100"},
      // A box without a lower edge is as high as it stands below the top, upward; halves are cut.
      {2, {100, 301, 1100, 0}, "100,-99 1100,401"},
      {2, {100, 200, 0, 700}, "100,475 0,425"},
      {3, {100, 200, 1100, 700}, "0,0 100,50"},
      {4, {100, 200, 1100, 700}, "none"},
  };
  for (const Row& row : rows) {
    const auto place = placeImage(row.mode, row.box, 100, 50);
    const std::string text =
        !place ? "none"
               : std::to_string(place->left) + "," + std::to_string(place->top) + " " +
                     std::to_string(place->right) + "," + std::to_string(place->bottom);
    EXPECT_EQ(text, row.place) << row.mode;
  }
}

}  // namespace
}  // namespace qor::test
