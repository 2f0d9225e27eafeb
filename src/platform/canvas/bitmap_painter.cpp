// Level text on bitmaps.
#include "platform/canvas/bitmap_painter.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace qor {
namespace {

// Larger glyphs, in 1/64 dots, are not worth keeping.
constexpr double kLargestMask = 256 * 64;

// Whoever shows the dots may take their highest byte for alpha.
constexpr std::uint32_t kOpaque = 0xFF000000;

int roundedDot(double dot) {
  return static_cast<int>(std::lround(dot));
}

// One colour component of the pixel, moved toward the ink by coverage / 255.
std::uint32_t mixed(std::uint32_t paper, std::uint32_t ink, std::uint32_t coverage, int shift) {
  const std::uint32_t from = paper >> shift & 0xFFU;
  const std::uint32_t to = ink >> shift & 0xFFU;
  return (from * (255 - coverage) + to * coverage + 127) / 255 << shift;
}

void blend(std::uint32_t& pixel, std::uint32_t ink, std::uint32_t coverage) {
  if (coverage == 255) {
    pixel = ink;
  } else if (coverage != 0) {
    pixel = kOpaque | mixed(pixel, ink, coverage, 16) | mixed(pixel, ink, coverage, 8) |
            mixed(pixel, ink, coverage, 0);
  }
}

DotRect intersection(const DotRect& a, const DotRect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom), a.coverage};
}

}  // namespace

BitmapPainter::BitmapPainter(cairo_surface_t* surface, Point size, int dpi)
    : CairoCanvas(surface, size, {dpi, dpi}),
      surface_(surface),
      pixels_(reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface))),
      stride_(cairo_image_surface_get_stride(surface) / 4),
      clip_{0, 0, size.x, size.y} {
}

void BitmapPainter::setClip(const Rect& dots) {
  CairoCanvas::setClip(dots);
  clip_ = intersection({0, 0, space().size().x, space().size().y},
                       {dots.left, dots.top, dots.right, dots.bottom});
}

void BitmapPainter::clearClip() {
  CairoCanvas::clearClip();
  clip_ = {0, 0, space().size().x, space().size().y};
}

void BitmapPainter::clipText(const Rect& rect) {
  CairoCanvas::clipText(rect);
  saved_.push_back(clip_);
  const auto dot = [](double place, int limit) {
    return roundedDot(std::clamp(place, -1.0, limit + 1.0));
  };
  const DotBox box = space().textClip(rect);
  const Point size = space().size();
  clip_ = intersection(clip_, {dot(box.left, size.x), dot(box.top, size.y), dot(box.right, size.x),
                               dot(box.bottom, size.y)});
}

void BitmapPainter::unclipText() {
  CairoCanvas::unclipText();
  clip_ = saved_.back();
  saved_.pop_back();
}

void BitmapPainter::showGlyphs(const TextRun& run, Dots direction) {
  const double size = run.font.emSize() * space().dotsPerUnit().y * 64;
  if (!run.level() || std::max(size, size * run.font.widthScale()) > kLargestMask) {
    CairoCanvas::showGlyphs(run, direction);
    return;
  }
  cairo_surface_flush(surface_);
  showLevelGlyphs(run);
  cairo_surface_mark_dirty(surface_);
}

void BitmapPainter::showLevelGlyphs(const TextRun& run) {
  const TextMetrics& metrics = run.font.metrics();
  const double em = run.font.emSize() * 64;
  MaskKey key;
  key.width = roundedDot(em * run.font.widthScale() * space().dotsPerUnit().x);
  key.height = roundedDot(em * space().dotsPerUnit().y);
  if (key.width == 0 || key.height == 0) return;
  const Dots corner = space().dots(run.x, run.y);
  const int baseline = roundedDot(corner.y + metrics.ascent * space().dotsPerUnit().y);
  const std::uint32_t ink = pixelOf(run.color);
  for (std::size_t i = 0; i < run.glyphs.size(); ++i) {
    const PlacedGlyph& glyph = run.glyphs[i];
    const double x = corner.x + glyph.distance * space().dotsPerUnit().x;
    if (x > clip_.right || x < clip_.left - kLargestMask / 64) continue;
    if (isBoxCharacter(run.text[i])) {
      const BoxCharacter box(run.text[i], boxCell(space(), run, i));
      for (const DotRect& rect : box.rects()) paintField(rect, ink);
      continue;
    }
    const int quarters = roundedDot(x * kMaskPhases);
    const int dot = static_cast<int>(std::floor(double(quarters) / kMaskPhases));
    key.face = glyph.face;
    key.glyph = glyph.index;
    key.phase = quarters - dot * kMaskPhases;
    paintMask(masks_.get(key), dot, baseline, ink);
  }
}

void BitmapPainter::paintMask(const GlyphMask& mask, int x, int y, std::uint32_t color) {
  const int left = x + mask.left;
  const int top = y + mask.top;
  const DotRect seen = intersection({left, top, left + mask.width, top + mask.height}, clip_);
  if (seen.left >= seen.right) return;
  for (int line = seen.top; line < seen.bottom; ++line) {
    const std::uint8_t* coverage =
        mask.coverage.data() + static_cast<std::ptrdiff_t>(line - top) * mask.width - left;
    std::uint32_t* pixels = row(line);
    for (int column = seen.left; column < seen.right; ++column) {
      blend(pixels[column], color, coverage[column]);
    }
  }
}

void BitmapPainter::paintField(const DotRect& field, std::uint32_t color) {
  const DotRect seen = intersection(field, clip_);
  if (seen.left >= seen.right) return;
  for (int line = seen.top; line < seen.bottom; ++line) {
    const std::span dots(row(line) + seen.left, static_cast<std::size_t>(seen.right - seen.left));
    if (seen.coverage == 255) {
      std::fill(dots.begin(), dots.end(), color);
    } else {
      for (std::uint32_t& dot : dots) blend(dot, color, seen.coverage);
    }
  }
}

void BitmapPainter::rectangle(const Rect& rect) {
  if (pen().style != PenStyle::none || brush().style != BrushStyle::solid) {
    CairoCanvas::rectangle(rect);
    return;
  }
  const DotBox field = edges(rect);
  cairo_surface_flush(surface_);
  paintField({roundedDot(field.left), roundedDot(field.top), roundedDot(field.right),
              roundedDot(field.bottom)},
             pixelOf(brush().color));
  cairo_surface_mark_dirty(surface_);
}

}  // namespace qor
