// Pens and brushes by Cairo.
#include <cmath>

#include "platform/canvas/cairo_canvas.h"
#include "platform/canvas/pen_patterns.h"

namespace qor {
namespace {

void setColor(cairo_t* context, Color color) {
  cairo_set_source_rgb(context, redOf(color) / 255.0, greenOf(color) / 255.0,
                       blueOf(color) / 255.0);
}

void drawHatch(cairo_surface_t* surface, const HatchTile& tile, Color color) {
  const CairoOwned<cairo_t> context(cairo_create(surface));
  for (const HatchTile::Line& line : tile.lines) {
    cairo_move_to(context.get(), line.x1, line.y1);
    cairo_line_to(context.get(), line.x2, line.y2);
  }
  setColor(context.get(), color);
  cairo_set_line_width(context.get(), tile.lineWidth);
  cairo_stroke(context.get());
}

}  // namespace

double CairoCanvas::penWidth() const {
  return std::round(space_.penWidth(pen()));
}

void CairoCanvas::useColor(Color color) {
  setColor(context_.get(), color);
}

void CairoCanvas::preparePen() {
  const double width = penWidth();
  useColor(pen().color);
  cairo_set_line_width(context_.get(), width);
  cairo_set_line_join(context_.get(), CAIRO_LINE_JOIN_MITER);
  const std::vector<double> dashes = dashesOf(pen().style, width, space_.mappedDpi());
  cairo_set_dash(context_.get(), dashes.data(), static_cast<int>(dashes.size()), 0);
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
    useHatch();
  }
  cairo_fill_preserve(context_.get());
}

void CairoCanvas::useHatch() {
  const HatchTile tile = hatchTile(brush().style, space_.mappedDpi());
  const CairoOwned<cairo_surface_t> surface(cairo_surface_create_similar(
      cairo_get_target(context_.get()), CAIRO_CONTENT_COLOR_ALPHA, tile.side, tile.side));
  drawHatch(surface.get(), tile, brush().color);
  cairo_set_source_surface(context_.get(), surface.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(context_.get()), CAIRO_EXTEND_REPEAT);
  cairo_pattern_set_filter(cairo_get_source(context_.get()), CAIRO_FILTER_NEAREST);
}

void CairoCanvas::paintPath() {
  fillPath();
  strokePath();
}

}  // namespace qor
