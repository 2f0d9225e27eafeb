// Cells of the colour palette.
#include "window_model/palette_grid.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace qor {
namespace {

constexpr SColor kWhiteColor{255, 255, 255};

constexpr std::array<Color, 16> kBaseColors = {
    0x000000, 0x800000, 0x808000, 0x008000, 0x800080, 0x000080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0xFFFF00, 0x00FF00, 0xFF00FF, 0x0000FF, 0x00FFFF, 0xFFFFFF,
};

struct Ramp {
  SColor start;
  SColor end;
};

constexpr int kRampSteps = 8;
constexpr std::array<Ramp, 20> kRamps = {{
    {{0, 0, 0}, {255, 255, 255}},   {{255, 255, 255}, {0, 0, 0}},   {{255, 255, 255}, {255, 0, 0}},
    {{255, 0, 0}, {0, 0, 0}},       {{255, 255, 255}, {0, 255, 0}}, {{0, 255, 0}, {0, 0, 0}},
    {{255, 255, 255}, {0, 0, 255}}, {{0, 0, 255}, {0, 0, 0}},       {{255, 0, 0}, {255, 255, 0}},
    {{255, 255, 0}, {0, 255, 0}},   {{0, 255, 0}, {0, 255, 255}},   {{0, 255, 255}, {0, 0, 255}},
    {{0, 0, 255}, {255, 0, 255}},   {{255, 0, 255}, {255, 0, 0}},   {{128, 0, 0}, {128, 128, 0}},
    {{128, 128, 0}, {0, 128, 0}},   {{0, 128, 0}, {0, 128, 128}},   {{0, 128, 128}, {0, 0, 128}},
    {{0, 0, 128}, {128, 0, 128}},   {{128, 0, 128}, {128, 0, 0}},
}};
static_assert(kBaseColors.size() + kRamps.size() * kRampSteps == kPaletteCells);

// Single precision and the cut belong to the colours: a ramp up to 255 ends at 254.
std::uint8_t rampChannel(std::uint8_t start, std::uint8_t end, int steps, int step) {
  const float slope = static_cast<float>(end - start) / static_cast<float>(steps - 1);
  return static_cast<std::uint8_t>(static_cast<float>(start) + slope * static_cast<float>(step));
}

std::array<SColor, kPaletteCells> allColors() {
  std::array<SColor, kPaletteCells> colors{};
  auto* next = colors.begin();
  for (const Color base : kBaseColors) *next++ = SColor(base);
  for (const Ramp& ramp : kRamps)
    for (int step = 0; step < kRampSteps; ++step)
      *next++ = rampColor(ramp.start, ramp.end, kRampSteps, step);
  return colors;
}

Rect cellFrom(int left, int top) {
  return {left, top, left + kCellSize, top + kCellSize};
}

bool holds(const Rect& rect, const Point& point) {
  return point.x >= rect.left && point.x < rect.right && point.y >= rect.top &&
         point.y < rect.bottom;
}

// The start of the cell that a coordinate lies in, where a row or column has so many cells.
int cellStart(std::int32_t at, int cells) {
  return std::clamp(at, 0, cells * kCellSize - 1) / kCellSize * kCellSize;
}

}  // namespace

const std::array<SColor, kPaletteCells>& paletteColors() {
  static const std::array<SColor, kPaletteCells> colors = allColors();
  return colors;
}

SColor rampColor(const SColor& start, const SColor& end, int steps, int step) {
  if (steps < 2) return kWhiteColor;
  return {rampChannel(start.red, end.red, steps, step),
          rampChannel(start.green, end.green, steps, step),
          rampChannel(start.blue, end.blue, steps, step)};
}

std::string colorText(const SColor& color) {
  char text[32];
  std::snprintf(text, sizeof text, "#%02x%02x%02x (%d, %d, %d)", color.red, color.green, color.blue,
                color.red, color.green, color.blue);
  return text;
}

int cellOfColor(const SColor& color) {
  const auto& colors = paletteColors();
  const auto* cell = std::find(colors.begin(), colors.end(), color);
  return cell == colors.end() ? kNoCell : static_cast<int>(cell - colors.begin());
}

Rect cellRect(int index, CellCheck check) {
  if (check == CellCheck::strict && (index < 0 || index > kPaletteCells))
    throw std::out_of_range("palette cell " + std::to_string(index));
  if (index == kNoCell) return {};
  const int cell = std::clamp(index, 0, kPaletteCells - 1);
  return cellFrom(cell % kPaletteColumns * kCellSize, cell / kPaletteColumns * kCellSize);
}

Rect cellRectAt(const Point& point, const Rect& present) {
  if (holds(present, point)) return {};
  return cellFrom(cellStart(point.x, kPaletteColumns), cellStart(point.y, kPaletteRows));
}

int cellOfRect(const Rect& rect) {
  if (rect.width() == 0) return kNoCell;
  return rect.top / kCellSize * kPaletteColumns + rect.left / kCellSize;
}

int movedCell(int index, CellMove move) {
  if (index == kNoCell) return 0;
  const auto stepped = [index](int step) {
    const int next = index + step;
    return next < 0 || next >= kPaletteCells ? index : next;
  };
  switch (move) {
    case CellMove::left: return stepped(-1);
    case CellMove::right: return stepped(1);
    case CellMove::up: return stepped(-kPaletteColumns);
    case CellMove::down: return stepped(kPaletteColumns);
  }
  return index;
}

}  // namespace qor
