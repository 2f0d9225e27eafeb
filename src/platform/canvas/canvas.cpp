// Layout of text, the same on every device.
#include "platform/canvas/canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/units.h"

namespace qor {
namespace {

// Longer texts are painted in parts, so that their glyphs never fill the memory.
constexpr std::size_t kPartLength = 4096;

double radians(std::int32_t tenthsOfDegree) {
  return tenthsOfDegree * std::numbers::pi / 1800;
}

// Where a text of this length starts between two edges.
double aligned(double first, double last, double length, Align align) {
  switch (align) {
    case Align::centre: return first + (last - first - length) / 2;
    case Align::end: return last - length;
    default: return first;
  }
}

}  // namespace

void Canvas::setFont(const LogFont& font) {
  if (font_ && record_ == font) return;
  record_ = font;
  font_ = scaledFont(font);
}

void Canvas::moveTo(Point position) {
  position_ = {double(position.x), double(position.y)};
}

Point Canvas::currentPosition() const {
  return {truncated(position_.x), truncated(position_.y)};
}

void Canvas::reset() {
  pen_ = {};
  brush_ = {};
  text_color_ = kBlack;
  character_extra_ = 0;
  position_ = {};
}

double Canvas::textLength(std::u32string_view text) const {
  double length = 0;
  for (const char32_t c : text) length += font_->glyph(c).advance + character_extra_;
  return length;
}

Canvas::Position Canvas::paintAt(Position start, std::u32string_view text) {
  const double angle = radians(record_.Escapement);
  while (!text.empty()) {
    const std::u32string_view part = text.substr(0, kPartLength);
    glyphs_.clear();
    double length = 0;
    for (const char32_t c : part) {
      const Glyph glyph = font_->glyph(c);
      glyphs_.push_back({glyph.face, glyph.index, length});
      length += glyph.advance + character_extra_;
    }
    paintText({*font_, record_, text_color_, start.x, start.y, angle, length,
               double(character_extra_), part, glyphs_});
    if (record_.Escapement == 0) {
      start.x += length;
    } else {
      start = {start.x + length * std::cos(angle), start.y - length * std::sin(angle)};
    }
    text.remove_prefix(part.size());
  }
  return start;
}

void Canvas::textOut(std::u32string_view text) {
  position_ = paintAt(position_, text);
}

void Canvas::drawText(std::u32string_view text, const Rect& rect, Align horizontal,
                      Align vertical) {
  // A box without a lower edge has no height.
  const double bottom = std::max(rect.top, rect.bottom);
  const double x = aligned(rect.left, rect.right, textLength(text), horizontal);
  const double y = aligned(rect.top, bottom, font_->metrics().height, vertical);
  clipText(rect);
  paintAt({x, y}, text);
  unclipText();
}

}  // namespace qor
