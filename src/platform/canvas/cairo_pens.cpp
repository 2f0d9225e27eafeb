// Pens and brushes by Cairo.
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "base/units.h"
#include "platform/canvas/cairo_canvas.h"

namespace qor {
namespace {

// Hatch lines are eight screen dots apart, and a dashed pen's unit is three, as on the screens that
// these styles come from.
constexpr double kHatchStep = 8.0 / kPictureDpi;
constexpr double kHatchLine = 1.0 / 8;  // of the step
constexpr double kDashUnit = 3.0 / kPictureDpi;

// On and off lengths, in units.
std::span<const double> dashesOf(PenStyle style) {
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

// One tile of a hatch. Diagonals go on in the neighbouring tiles, so they start outside of it.
void drawHatch(cairo_surface_t* tile, const Brush& brush, double step, double width) {
  const CairoOwned<cairo_t> context(cairo_create(tile));
  const auto is = [&brush](auto... styles) { return ((brush.style == styles) || ...); };
  const auto line = [&context](double x1, double y1, double x2, double y2) {
    cairo_move_to(context.get(), x1, y1);
    cairo_line_to(context.get(), x2, y2);
  };
  const double middle = width / 2;
  if (is(BrushStyle::horizontal, BrushStyle::cross)) line(0, middle, step, middle);
  if (is(BrushStyle::vertical, BrushStyle::cross)) line(middle, 0, middle, step);
  for (const double shift : {-step, 0.0, step}) {
    if (is(BrushStyle::forwardDiagonal, BrushStyle::diagonalCross)) {
      line(shift - step, -step, shift + 2 * step, 2 * step);
    }
    if (is(BrushStyle::backwardDiagonal, BrushStyle::diagonalCross)) {
      line(shift + 2 * step, -step, shift - step, 2 * step);
    }
  }
  cairo_set_source_rgb(context.get(), redOf(brush.color) / 255.0, greenOf(brush.color) / 255.0,
                       blueOf(brush.color) / 255.0);
  cairo_set_line_width(context.get(), width);
  cairo_stroke(context.get());
}

}  // namespace

double CairoCanvas::penWidth() const {
  const double width = std::min(realDotsFromTwips(pen().width, mapping_.dpiX), kBeyondSurface);
  return std::max(1.0, grid_ == DotGrid::visible ? std::round(width) : width);
}

void CairoCanvas::useColor(Color color) {
  cairo_set_source_rgb(context_.get(), redOf(color) / 255.0, greenOf(color) / 255.0,
                       blueOf(color) / 255.0);
}

void CairoCanvas::preparePen() {
  const double width = penWidth();
  useColor(pen().color);
  cairo_set_line_width(context_.get(), width);
  cairo_set_line_join(context_.get(), CAIRO_LINE_JOIN_MITER);
  const std::span<const double> dashes = dashesOf(pen().style);
  std::array<double, 6> lengths{};
  const double unit = std::max(width, kDashUnit * mapping_.dpiX);
  std::transform(dashes.begin(), dashes.end(), lengths.begin(),
                 [unit](double length) { return length * unit; });
  cairo_set_dash(context_.get(), lengths.data(), static_cast<int>(dashes.size()), 0);
}

void CairoCanvas::strokePath() {
  if (pen().style == PenStyle::none) {
    cairo_new_path(context_.get());
    return;
  }
  preparePen();
  cairo_stroke(context_.get());
}

// Fills what the current path encloses and keeps the path.
void CairoCanvas::fillPath() {
  const BrushStyle style = brush().style;
  if (style == BrushStyle::none) return;
  if (style == BrushStyle::solid) {
    useColor(brush().color);
  } else {
    useHatch(brush());
  }
  cairo_fill_preserve(context_.get());
}

// Hatches are tiles that repeat from the page's corner and not from the shape's, so that those of
// neighbours join.
void CairoCanvas::useHatch(const Brush& brush) {
  const int step = std::max(2, static_cast<int>(std::lround(kHatchStep * mapping_.dpiX)));
  const CairoOwned<cairo_surface_t> tile(cairo_surface_create_similar(
      cairo_get_target(context_.get()), CAIRO_CONTENT_COLOR_ALPHA, step, step));
  drawHatch(tile.get(), brush, step, std::max(1.0, std::round(step * kHatchLine)));
  cairo_set_source_surface(context_.get(), tile.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(context_.get()), CAIRO_EXTEND_REPEAT);
  cairo_pattern_set_filter(cairo_get_source(context_.get()), CAIRO_FILTER_NEAREST);
}

void CairoCanvas::paintPath() {
  fillPath();
  strokePath();
}

}  // namespace qor
