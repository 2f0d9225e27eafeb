// Shapes and pictures by Cairo. All coordinates are brought to dots first: straight edges can then
// be put on whole dots, and ones far off the surface be cut before Cairo's own range ends.
#include "platform/canvas/cairo_canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "base/units.h"
#include "platform/pictures/picture.h"

namespace qor {
namespace {

// Lines and edges end this far off the surface at the latest, in dots. Thicker pens are cut.
constexpr double kBeyond = 1024;
constexpr double kCurveBeyond = 100000;  // curves can't be cut without another shape

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

// Cuts a line, on the line itself, to the stretch from -kBeyond to size + kBeyond of one axis; `u`
// runs along that axis, `v` along the other. False if nothing is left.
bool cutLine(double& u1, double& v1, double& u2, double& v2, std::int32_t size) {
  const double low = -kBeyond;
  const double high = size + kBeyond;
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
  for (double shift = -step; shift <= step; shift += step) {
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

double near(double dot, std::int32_t size, double beyond) {
  return std::clamp(dot, -beyond, size + beyond);
}

}  // namespace

CairoCanvas::CairoCanvas(cairo_surface_t* surface, Point size, Point dotsPerInch, DotGrid grid)
    : context_(cairo_create(surface)),
      fontOptions_(cairo_font_options_create()),
      size_(size),
      dotsPerInch_(dotsPerInch),
      grid_(grid),
      mapping_{double(dotsPerInch.x), double(dotsPerInch.y), 0, 0} {
  const bool hinted = grid == DotGrid::visible;
  cairo_font_options_set_antialias(fontOptions_.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_metrics(fontOptions_.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(fontOptions_.get(),
                                    hinted ? CAIRO_HINT_STYLE_SLIGHT : CAIRO_HINT_STYLE_NONE);
  cairo_set_font_options(context_.get(), fontOptions_.get());
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
  return {x * mapping_.dpiX / kTwipsPerInch + mapping_.originX,
          y * mapping_.dpiY / kTwipsPerInch + mapping_.originY};
}

CairoCanvas::Dots CairoCanvas::dotsPerTwip() const {
  return {double(mapping_.dpiX) / kTwipsPerInch, double(mapping_.dpiY) / kTwipsPerInch};
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

double CairoCanvas::penWidth() const {
  const double width = std::min(double(pen().width) * mapping_.dpiX / kTwipsPerInch, kBeyond);
  return std::max(1.0, grid_ == DotGrid::visible ? std::round(width) : width);
}

// The place of a straight edge whose stroke covers whole dots.
double CairoCanvas::onGrid(double edge) const {
  if (grid_ == DotGrid::fine) return edge;
  const bool odd = pen().style != PenStyle::none && std::fmod(penWidth(), 2.0) == 1.0;
  return odd ? std::floor(edge) + 0.5 : std::round(edge);
}

CairoCanvas::DotBox CairoCanvas::edges(const Rect& rect) const {
  const DotBox exact = box(rect, kBeyond);
  return {onGrid(exact.left), onGrid(exact.top), onGrid(exact.right), onGrid(exact.bottom)};
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

void CairoCanvas::rectangle(const Rect& rect) {
  const DotBox place = edges(rect);
  cairo_rectangle(context_.get(), place.left, place.top, place.width(), place.height());
  paintPath();
}

void CairoCanvas::roundRect(const Rect& rect, std::int32_t width, std::int32_t height) {
  const DotBox place = edges(rect);
  const Dots corner = {width * double(mapping_.dpiX) / kTwipsPerInch / 2,
                       height * double(mapping_.dpiY) / kTwipsPerInch / 2};
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

void CairoCanvas::drawPicture(const Picture& picture, const Rect& rect) {
  if (rect.width() <= 0 || rect.height() <= 0 || picture.pixels.empty()) return;
  const Dots corner = dots(rect.left, rect.top);
  const Dots end = dots(rect.right, rect.bottom);
  double scaleX = (end.x - corner.x) / picture.width;
  double scaleY = (end.y - corner.y) / picture.height;
  const bool asItIs = std::abs(scaleX - 1) < 0.5 / picture.width + 1e-9 &&
                      std::abs(scaleY - 1) < 0.5 / picture.height + 1e-9;
  const bool exact = asItIs && grid_ == DotGrid::visible;
  if (exact) scaleX = scaleY = 1;
  // Cairo only reads the pixels of a source.
  auto* pixels =
      reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(picture.pixels.data()));
  const CairoOwned<cairo_surface_t> source(cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_ARGB32, picture.width, picture.height, picture.width * 4));
  cairo_t* context = context_.get();
  cairo_save(context);
  cairo_translate(context, exact ? std::round(corner.x) : corner.x,
                  exact ? std::round(corner.y) : corner.y);
  cairo_scale(context, scaleX, scaleY);
  cairo_rectangle(context, 0, 0, picture.width, picture.height);
  cairo_clip(context);
  cairo_set_source_surface(context, source.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context),
                           exact ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_GOOD);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_paint(context);
  cairo_restore(context);
}

}  // namespace qor
