// The cells of the colour palette: their colours, where they stand, and the ways between them.
#pragma once

#include <array>
#include <string>

#include "platform/canvas/canvas.h"

namespace qor {

// One colour of the palette.
struct SColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  constexpr SColor() = default;
  constexpr SColor(std::uint8_t r, std::uint8_t g, std::uint8_t b) : red(r), green(g), blue(b) {}
  constexpr explicit SColor(Color value)
      : red(static_cast<std::uint8_t>(redOf(value))),
        green(static_cast<std::uint8_t>(greenOf(value))),
        blue(static_cast<std::uint8_t>(blueOf(value))) {}

  constexpr Color value() const {
    return red | static_cast<Color>(green) << 8 | static_cast<Color>(blue) << 16;
  }
  bool operator==(const SColor&) const = default;
};

inline constexpr int kPaletteColumns = 16;
inline constexpr int kPaletteRows = 11;
inline constexpr int kPaletteCells = kPaletteColumns * kPaletteRows;
inline constexpr int kCellSize = 16;  // pixels, across and down
inline constexpr int kNoCell = -1;

// The colours, cell by cell.
const std::array<SColor, kPaletteCells>& paletteColors();

// The colour of a step, from 0, of a ramp that leads from one colour to another in so many steps.
// White where they are fewer than 2.
SColor rampColor(const SColor& start, const SColor& end, int steps, int step);

// Such as "#ff0000 (255, 0, 0)".
std::string colorText(const SColor& color);

// The first cell of that colour, or kNoCell.
int cellOfColor(const SColor& color);

// The rectangle of a cell, in pixels. kNoCell has an empty one; other indexes outside the palette
// stand for the first and the last cell. With the strict check, an index below 0 or above the
// number of cells throws std::out_of_range.
enum class CellCheck { lenient, strict };
Rect cellRect(int index, CellCheck check = CellCheck::lenient);

// The rectangle of the cell at a point, of the nearest one where it lies outside. Empty where it
// lies inside of the present cell: there is nothing to draw anew.
Rect cellRectAt(const Point& point, const Rect& present);

// The cell of such a rectangle; kNoCell for an empty one.
int cellOfRect(const Rect& rect);

// The cell that an arrow key leads to. It stays where there is none further on; from kNoCell all
// keys lead to the first one.
enum class CellMove { left, right, up, down };
int movedCell(int index, CellMove move);

}  // namespace qor
