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

constexpr double kCurveBeyond = 100000;  // curves can't be cut without another shape

// Cuts a line, on the line itself, to the stretch from -kBeyondSurface to size + kBeyondSurface of
// one axis; `u` runs along that axis, `v` along the other. False if nothing is left.
bool cutLine(double& u1, double& v1, double& u2, double& v2, std::int32_t size) {
  const double low = -kBeyondSurface;
  const double high = size + kBeyondSurface;
  if (std::max(u1, u2) < low || std::min(u1, u2) > high) return false;
  const double slope = u1 == u2 ? 0 : (v2 - v1) / (u2 - u1);
  const auto cut = [&](double& u, double& v) {
    const double kept = std::clamp(u, low, high);
    v += (kept - u) * slope;
    u = kept;
  };
  cut(u1, v1);
  cut(u2, v2);
  return true;
}

double near(double dot, std::int32_t size, double beyond) {
  return std::clamp(dot, -beyond, size + beyond);
}

}  // namespace

CairoCanvas::CairoCanvas(cairo_surface_t* surface, Point size, Point dotsPerInch, DotGrid grid)
    : context_(cairo_create(surface)),
      font_options_(cairo_font_options_create()),
      size_(size),
      dots_per_inch_(dotsPerInch),
      grid_(grid),
      mapping_{double(dotsPerInch.x), double(dotsPerInch.y), 0, 0} {
  const bool hinted = grid == DotGrid::visible;
  cairo_font_options_set_antialias(font_options_.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_metrics(font_options_.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(font_options_.get(),
                                    hinted ? CAIRO_HINT_STYLE_SLIGHT : CAIRO_HINT_STYLE_NONE);
  cairo_set_font_options(context_.get(), font_options_.get());
}

CairoCanvas::~CairoCanvas() = default;

void CairoCanvas::setMapping(const Mapping& mapping) {
  mapping_ = mapping;
}

void CairoCanvas::setClip(const Rect& dots) {
  clearClip();
  cairo_rectangle(context_.get(), dots.left, dots.top, static_cast<double>(dots.width()),
                  static_cast<double>(dots.height()));
  cairo_clip(context_.get());
}

void CairoCanvas::clearClip() {
  cairo_reset_clip(context_.get());
}

CairoCanvas::Dots CairoCanvas::dots(double x, double y) const {
  return {realDotsFromTwips(x, mapping_.dpiX) + mapping_.originX,
          realDotsFromTwips(y, mapping_.dpiY) + mapping_.originY};
}

CairoCanvas::Dots CairoCanvas::dotsPerTwip() const {
  return {realDotsPerTwip(mapping_.dpiX), realDotsPerTwip(mapping_.dpiY)};
}

CairoCanvas::DotBox CairoCanvas::box(const Rect& rect, double beyond) const {
  const Dots first = dots(rect.left, rect.top);
  const Dots last = dots(rect.right, rect.bottom);
  const double x1 = near(first.x, size_.x, beyond);
  const double x2 = near(last.x, size_.x, beyond);
  const double y1 = near(first.y, size_.y, beyond);
  const double y2 = near(last.y, size_.y, beyond);
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

// The place of a straight edge whose stroke covers whole dots.
double CairoCanvas::onGrid(double edge) const {
  if (grid_ == DotGrid::fine) return edge;
  const bool odd = pen().style != PenStyle::none && std::fmod(penWidth(), 2.0) == 1.0;
  return odd ? std::floor(edge) + 0.5 : std::round(edge);
}

CairoCanvas::DotBox CairoCanvas::edges(const Rect& rect) const {
  const DotBox exact = box(rect, kBeyondSurface);
  return {onGrid(exact.left), onGrid(exact.top), onGrid(exact.right), onGrid(exact.bottom)};
}

void CairoCanvas::rectangle(const Rect& rect) {
  const DotBox place = edges(rect);
  cairo_rectangle(context_.get(), place.left, place.top, place.width(), place.height());
  paintPath();
}

void CairoCanvas::roundRect(const Rect& rect, std::int32_t width, std::int32_t height) {
  const DotBox place = edges(rect);
  const Dots corner = {realDotsFromTwips(width, mapping_.dpiX) / 2,
                       realDotsFromTwips(height, mapping_.dpiY) / 2};
  const double rx = std::clamp(corner.x, 0.0, place.width() / 2);
  const double ry = std::clamp(corner.y, 0.0, place.height() / 2);
  if (rx <= 0 || ry <= 0) return rectangle(rect);
  const auto quarter = [&](double x, double y, double from) {
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
  const DotBox place = box(rect, kCurveBeyond);
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
  Dots from = dots(start.x, start.y);
  Dots to = dots(end.x, end.y);
  if (!cutLine(from.x, from.y, to.x, to.y, size_.x) ||
      !cutLine(from.y, from.x, to.y, to.x, size_.y)) {
    return;
  }
  const bool upright = start.x == end.x;
  const bool level = start.y == end.y;
  if (upright || level) {
    const auto tip = [this](double dot) {
      return grid_ == DotGrid::visible ? std::round(dot) : dot;
    };
    from = upright ? Dots{onGrid(from.x), tip(from.y)} : Dots{tip(from.x), onGrid(from.y)};
    to = upright ? Dots{from.x, tip(to.y)} : Dots{tip(to.x), from.y};
  }
  cairo_set_line_cap(context_.get(), upright || level ? CAIRO_LINE_CAP_BUTT : CAIRO_LINE_CAP_ROUND);
  cairo_move_to(context_.get(), from.x, from.y);
  cairo_line_to(context_.get(), to.x, to.y);
  strokePath();
  cairo_set_line_cap(context_.get(), CAIRO_LINE_CAP_BUTT);
}

void CairoCanvas::drawPicture(const StoredPicture& picture, const Rect& rect) {
  if (rect.width() <= 0 || rect.height() <= 0) return;
  const int width = picture.width();
  const int height = picture.height();
  const Dots corner = dots(rect.left, rect.top);
  const Dots end = dots(rect.right, rect.bottom);
  double scaleX = (end.x - corner.x) / width;
  double scaleY = (end.y - corner.y) / height;
  const bool asItIs =
      std::abs(scaleX - 1) < 0.5 / width + 1e-9 && std::abs(scaleY - 1) < 0.5 / height + 1e-9;
  const bool exact = asItIs && grid_ == DotGrid::visible;
  if (exact) scaleX = scaleY = 1;
  cairo_t* context = context_.get();
  cairo_save(context);
  cairo_translate(context, exact ? std::round(corner.x) : corner.x,
                  exact ? std::round(corner.y) : corner.y);
  cairo_scale(context, scaleX, scaleY);
  cairo_rectangle(context, 0, 0, width, height);
  cairo_clip(context);
  paintPicture(context, picture, exact);
  cairo_restore(context);
}

void CairoCanvas::paintPicture(cairo_t* context, const StoredPicture& picture, bool exact) {
  const auto held = picture.pixels();
  if (!held) return;
  // Cairo only reads the pixels of a source.
  auto* pixels = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(held->pixels.data()));
  const CairoOwned<cairo_surface_t> source(cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_ARGB32, held->width, held->height, held->width * 4));
  cairo_set_source_surface(context, source.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context),
                           exact ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_GOOD);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_paint(context);
}

}  // namespace qor
