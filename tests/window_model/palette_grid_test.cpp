// The palette's cells. A ramp's channel rises by 255 / 7 = 36.43 or 128 / 7 = 18.29 a step; in
// single precision seven times the first is a little less than 255, and seven times the second is
// 128.
#include "window_model/palette_grid.h"

#include <gtest/gtest.h>

namespace qor::test {
namespace {

TEST(PaletteGrid, colorsAreThoseOfBasesAndRamps) {
  const std::pair<int, SColor> rows[] = {
      {1, {0, 0, 128}},    {4, {128, 0, 128}},    {7, {192, 192, 192}},  {9, {0, 0, 255}},
      {14, {255, 255, 0}}, {16, {0, 0, 0}},       {19, {109, 109, 109}}, {23, {254, 254, 254}},
      {31, {0, 0, 0}},     {34, {255, 182, 182}}, {44, {109, 0, 0}},     {50, {182, 255, 182}},
      {57, {0, 218, 0}},   {65, {218, 218, 255}}, {74, {0, 0, 182}},     {83, {255, 109, 0}},
      {90, {182, 255, 0}}, {98, {0, 255, 72}},    {110, {0, 36, 255}},   {113, {36, 0, 255}},
      {126, {255, 0, 36}}, {132, {128, 73, 0}},   {138, {91, 128, 0}},   {145, {0, 128, 18}},
      {157, {0, 36, 128}}, {163, {54, 0, 128}},   {169, {128, 0, 109}},
  };
  ASSERT_EQ(paletteColors().size(), 176U);
  for (const auto& [cell, color] : rows)
    EXPECT_EQ(colorText(paletteColors().at(static_cast<std::size_t>(cell))), colorText(color))
        << cell;
}

TEST(PaletteGrid, pointsLieInCells) {
  // The present cell, a point, and the cell that is to be highlighted.
  const std::tuple<int, Point, int> rows[] = {
      {-1, {0, 0}, 0},    {0, {0, 0}, -1},       {0, {15, 15}, -1},     {0, {16, 15}, 1},
      {0, {15, 16}, 16},  {-1, {255, 175}, 175}, {175, {255, 175}, -1}, {175, {256, 176}, 175},
      {5, {-1, -40}, 0},  {5, {300, 20}, 31},    {5, {20, 999}, 161},   {37, {80, 47}, -1},
      {37, {79, 47}, 36}, {37, {80, 48}, 53},
  };
  for (const auto& [present, point, cell] : rows)
    EXPECT_EQ(cellOfRect(cellRectAt(point, cellRect(present))), cell) << point.x << " " << point.y;
}

TEST(PaletteGrid, keysStopAtTheEnds) {
  using enum CellMove;
  const std::tuple<int, CellMove, int> rows[] = {
      {0, left, 0}, {16, left, 15},   {15, right, 16},  {175, right, 175}, {16, up, 0},
      {15, up, 15}, {159, down, 175}, {160, down, 160}, {-1, down, 0},
  };
  for (const auto& [from, move, to] : rows)
    EXPECT_EQ(movedCell(from, move), to) << from << " " << static_cast<int>(move);
}

}  // namespace
}  // namespace qor::test
