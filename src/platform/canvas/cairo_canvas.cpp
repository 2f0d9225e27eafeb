// Shapes and pictures by Cairo. All coordinates are brought to dots first: straight edges can then
// be put on whole dots, and ones far off the surface be cut before Cairo's own range ends.
#include "platform/canvas/cairo_canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/units.h"
#include "platform/pictures/picture.h"
#include "platform/pictures/picture_store.h"

namespace qor {
namespace {

// Paints the clip with the picture, a unit a pixel.
void paintPicture(cairo_t* context, const Picture& picture, bool exact) {
  // Cairo only reads the pixels of a source.
  auto* pixels =
      reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(picture.pixels.data()));
  const CairoOwned<cairo_surface_t> source(cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_ARGB32, picture.width, picture.height, picture.width * 4));
  cairo_set_source_surface(context, source.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context),
                           exact ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_GOOD);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_paint(context);
}

}  // namespace

CairoCanvas::CairoCanvas(cairo_surface_t* surface, Point size, Point dotsPerInch)
    : context_(cairo_create(surface)),
      font_options_(cairo_font_options_create()),
      space_(size, dotsPerInch) {
  cairo_font_options_set_antialias(font_options_.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_metrics(font_options_.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(font_options_.get(), CAIRO_HINT_STYLE_SLIGHT);
  cairo_set_font_options(context_.get(), font_options_.get());
}

CairoCanvas::~CairoCanvas() = default;

void CairoCanvas::setClip(const Rect& dots) {
  clearClip();
  cairo_rectangle(context_.get(), dots.left, dots.top, static_cast<double>(dots.width()),
                  static_cast<double>(dots.height()));
  cairo_clip(context_.get());
}

void CairoCanvas::clearClip() {
  cairo_reset_clip(context_.get());
}

// The place of a straight edge whose stroke covers whole dots.
double CairoCanvas::onGrid(double edge) const {
  const bool odd = pen().style != PenStyle::none && std::fmod(penWidth(), 2.0) == 1.0;
  return odd ? std::floor(edge) + 0.5 : std::round(edge);
}

DotBox CairoCanvas::edges(const Rect& rect) const {
  const DotBox exact = space_.box(rect);
  return {onGrid(exact.left), onGrid(exact.top), onGrid(exact.right), onGrid(exact.bottom)};
}

void CairoCanvas::rectangle(const Rect& rect) {
  const DotBox place = edges(rect);
  cairo_rectangle(context_.get(), place.left, place.top, place.width(), place.height());
  paintPath();
}

void CairoCanvas::roundRect(const Rect& rect, std::int32_t width, std::int32_t height) {
  const DotBox place = edges(rect);
  const auto [rx, ry] = space_.cornerRadii(place, width, height);
  if (rx == 0) return rectangle(rect);
  const auto quarter = [&, rx = rx, ry = ry](double x, double y, double from) {
    cairo_save(context_.get());
    cairo_translate(context_.get(), x, y);
    cairo_scale(context_.get(), rx, ry);
    cairo_arc(context_.get(), 0, 0, 1, from, from + std::numbers::pi / 2);
    cairo_restore(context_.get());
  };
  cairo_new_sub_path(context_.get());
  quarter(place.right - rx, place.top + ry, -std::numbers::pi / 2);
  quarter(place.right - rx, place.bottom - ry, 0);
  quarter(place.left + rx, place.bottom - ry, std::numbers::pi / 2);
  quarter(place.left + rx, place.top + ry, std::numbers::pi);
  cairo_close_path(context_.get());
  paintPath();
}

void CairoCanvas::ellipse(const Rect& rect) {
  const DotBox place = space_.curveBox(rect);
  if (place.width() <= 0 || place.height() <= 0) return;
  cairo_save(context_.get());
  cairo_translate(context_.get(), (place.left + place.right) / 2, (place.top + place.bottom) / 2);
  cairo_scale(context_.get(), place.width() / 2, place.height() / 2);
  cairo_new_sub_path(context_.get());
  cairo_arc(context_.get(), 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(context_.get());
  cairo_close_path(context_.get());
  paintPath();
}

void CairoCanvas::line(Point start, Point end) {
  Dots from = space_.dots(start.x, start.y);
  Dots to = space_.dots(end.x, end.y);
  if (!space_.cutLine(from, to)) return;
  const bool upright = start.x == end.x;
  const bool level = start.y == end.y;
  if (upright || level) {
    from = upright ? Dots{onGrid(from.x), std::round(from.y)}
                   : Dots{std::round(from.x), onGrid(from.y)};
    to = upright ? Dots{from.x, std::round(to.y)} : Dots{std::round(to.x), from.y};
  }
  cairo_set_line_cap(context_.get(), upright || level ? CAIRO_LINE_CAP_BUTT : CAIRO_LINE_CAP_ROUND);
  cairo_move_to(context_.get(), from.x, from.y);
  cairo_line_to(context_.get(), to.x, to.y);
  strokePath();
  cairo_set_line_cap(context_.get(), CAIRO_LINE_CAP_BUTT);
}

void CairoCanvas::drawPicture(const StoredPicture& picture, const Rect& rect) {
  if (rect.width() <= 0 || rect.height() <= 0) return;
  const auto held = picture.pixels();
  if (!held) return;
  const Dots corner = space_.dots(rect.left, rect.top);
  const Dots end = space_.dots(rect.right, rect.bottom);
  const double scaleX = (end.x - corner.x) / held->width;
  const double scaleY = (end.y - corner.y) / held->height;
  // Each pixel covers one dot.
  const bool exact = std::abs(scaleX - 1) < 0.5 / held->width + 1e-9 &&
                     std::abs(scaleY - 1) < 0.5 / held->height + 1e-9;
  cairo_t* context = context_.get();
  cairo_save(context);
  cairo_translate(context, exact ? std::round(corner.x) : corner.x,
                  exact ? std::round(corner.y) : corner.y);
  if (!exact) cairo_scale(context, scaleX, scaleY);
  cairo_rectangle(context, 0, 0, held->width, held->height);
  cairo_clip(context);
  paintPicture(context, *held, exact);
  cairo_restore(context);
}

}  // namespace qor
