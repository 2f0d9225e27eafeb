// Lengths of dashes and lines of hatches.
#include "platform/canvas/pen_patterns.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/units.h"

namespace qor {
namespace {

// Hatch lines are eight screen dots apart, and a dashed pen's unit is three.
constexpr double kHatchStep = 8.0 / kPictureDpi;
constexpr double kHatchLine = 1.0 / 8;  // of the step
constexpr double kDashUnit = 3.0 / kPictureDpi;

// In units.
std::span<const double> dashUnits(PenStyle style) {
  static constexpr std::array<double, 2> dash = {6, 2};
  static constexpr std::array<double, 2> dot = {1, 1};
  static constexpr std::array<double, 4> dashDot = {3, 2, 1, 2};
  static constexpr std::array<double, 6> dashDotDot = {3, 1, 1, 1, 1, 1};
  switch (style) {
    case PenStyle::dash: return dash;
    case PenStyle::dot: return dot;
    case PenStyle::dashDot: return dashDot;
    case PenStyle::dashDotDot: return dashDotDot;
    default: return {};
  }
}

}  // namespace

std::vector<double> dashesOf(PenStyle style, double width, double dpi) {
  const std::span<const double> units = dashUnits(style);
  std::vector<double> lengths(units.size());
  const double unit = std::max(width, kDashUnit * dpi);
  std::transform(units.begin(), units.end(), lengths.begin(),
                 [unit](double length) { return length * unit; });
  return lengths;
}

HatchTile hatchTile(BrushStyle style, double dpi) {
  const int side = std::max(2, static_cast<int>(std::lround(kHatchStep * dpi)));
  const double step = side;
  HatchTile tile = {side, std::max(1.0, std::round(step * kHatchLine)), {}};
  const auto is = [style](auto... styles) { return ((style == styles) || ...); };
  const auto line = [&tile](double x1, double y1, double x2, double y2) {
    tile.lines.push_back({x1, y1, x2, y2});
  };
  const double middle = tile.lineWidth / 2;
  if (is(BrushStyle::horizontal, BrushStyle::cross)) line(-step, middle, 2 * step, middle);
  if (is(BrushStyle::vertical, BrushStyle::cross)) line(middle, -step, middle, 2 * step);
  for (const double shift : {-step, 0.0, step}) {
    if (is(BrushStyle::forwardDiagonal, BrushStyle::diagonalCross))
      line(shift - step, -step, shift + 2 * step, 2 * step);
    if (is(BrushStyle::backwardDiagonal, BrushStyle::diagonalCross))
      line(shift + 2 * step, -step, shift - step, 2 * step);
  }
  return tile;
}

}  // namespace qor
