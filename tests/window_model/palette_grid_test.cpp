// The palette's cells. A ramp's channel rises by 255 / 7 = 36.43 or 128 / 7 = 18.29 a step; in
// single precision seven times the first is a little less than 255, and seven times the second is
// 128.
#include "window_model/palette_grid.h"

#include <gtest/gtest.h>

namespace qor::test {
namespace {

TEST(PaletteGrid, colorsAreThoseOfBasesAndRamps) {
  const std::pair<int, SColor> rows[] = {
      {0, {0, 0, 0}},       {1, {0, 0, 128}},      {4, {128, 0, 128}},    {5, {128, 0, 0}},
      {7, {192, 192, 192}}, {9, {0, 0, 255}},      {14, {255, 255, 0}},   {15, {255, 255, 255}},
      {16, {0, 0, 0}},      {17, {36, 36, 36}},    {19, {109, 109, 109}}, {23, {254, 254, 254}},
      {31, {0, 0, 0}},      {34, {255, 182, 182}}, {44, {109, 0, 0}},     {50, {182, 255, 182}},
      {57, {0, 218, 0}},    {70, {36, 36, 255}},   {83, {255, 109, 0}},   {87, {255, 254, 0}},
      {88, {255, 255, 0}},  {98, {0, 255, 72}},    {110, {0, 36, 255}},   {113, {36, 0, 255}},
      {126, {255, 0, 36}},  {132, {128, 73, 0}},   {135, {128, 128, 0}},  {138, {91, 128, 0}},
      {145, {0, 128, 18}},  {157, {0, 36, 128}},   {163, {54, 0, 128}},   {168, {128, 0, 128}},
      {169, {128, 0, 109}}, {175, {128, 0, 0}},
  };
  ASSERT_EQ(paletteColors().size(), 176U);
  for (const auto& [cell, color] : rows)
    EXPECT_EQ(colorText(paletteColors().at(static_cast<std::size_t>(cell))), colorText(color))
        << cell;
  const SColor black;
  const SColor brown(200, 100, 0);
  for (int steps : {1, 0, -3}) EXPECT_EQ(rampColor(black, brown, steps, 0), SColor(255, 255, 255));
  EXPECT_EQ(rampColor(black, brown, 2, 1), brown);
  EXPECT_EQ(rampColor(brown, {0, 255, 9}, 3, 1), SColor(100, 177, 4));
}

TEST(PaletteGrid, colorsBecomeValuesTextsAndCells) {
  EXPECT_EQ(SColor(0x332211), SColor(0x11, 0x22, 0x33));
  EXPECT_EQ(SColor(0x11, 0x22, 0xFE).value(), 0xFE2211U);
  EXPECT_EQ(colorText({255, 10, 0}), "#ff0a00 (255, 10, 0)");
  // A colour that several cells have is that of the first of them.
  const std::pair<SColor, int> rows[] = {{{0, 0, 0}, 0},       {{255, 255, 255}, 15},
                                         {{128, 0, 0}, 5},     {{254, 254, 254}, 23},
                                         {{128, 0, 109}, 169}, {{253, 254, 254}, -1}};
  for (const auto& [color, cell] : rows) EXPECT_EQ(cellOfColor(color), cell) << colorText(color);
}

using Sides = std::array<int, 4>;
Sides sides(const Rect& r) {
  return {r.left, r.top, r.right, r.bottom};
}

TEST(PaletteGrid, cellsStandInRowsOfSixteen) {
  const Sides last = {240, 160, 256, 176};
  const std::pair<int, Sides> rows[] = {
      {0, {0, 0, 16, 16}},   {15, {240, 0, 256, 16}}, {16, {0, 16, 16, 32}}, {175, last},
      {-2, {0, 0, 16, 16}},  {-1, {0, 0, 0, 0}},      {176, last},           {9999, last},
      {37, {80, 32, 96, 48}}};
  for (const auto& [cell, place] : rows) EXPECT_EQ(sides(cellRect(cell)), place) << cell;
  for (int outside : {-1, -2, 177})
    EXPECT_THROW(cellRect(outside, CellCheck::strict), std::out_of_range) << outside;
  for (int cell : {175, 176}) EXPECT_EQ(sides(cellRect(cell, CellCheck::strict)), last);
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
      {0, left, 0},      {1, left, 0},      {16, left, 15},   {0, right, 1},    {15, right, 16},
      {174, right, 175}, {175, right, 175}, {15, up, 15},     {16, up, 0},      {17, up, 1},
      {0, up, 0},        {159, down, 175},  {160, down, 160}, {175, down, 175}, {3, down, 19},
      {-1, left, 0},     {-1, down, 0},
  };
  for (const auto& [from, move, to] : rows)
    EXPECT_EQ(movedCell(from, move), to) << from << " " << static_cast<int>(move);
}

}  // namespace
}  // namespace qor::test
