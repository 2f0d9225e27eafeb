// Text by Cairo on FreeType faces.
#include <algorithm>
#include <cmath>
#include <numbers>

#include <cairo-ft.h>

#include "base/units.h"
#include "platform/canvas/cairo_canvas.h"
#include "platform/fonts/font_face.h"

namespace qor {
namespace {

// Larger glyphs than this, in dots, are no text any more.
constexpr double kLargestGlyph = 8192;

// Glyphs up to this size, in dots, are kept by Cairo as pictures. Larger ones are filled as
// outlines, which cost no memory.
constexpr double kLargestKept = 64;

double glyphSize(const TextRun& run, double dotsPerTwip) {
  return run.font.emSize() * std::max(1.0, run.font.widthScale()) * dotsPerTwip;
}

// Stands for an edge that isn't there, in dots.
constexpr double kEdgeless = 1e6;

CairoOwned<cairo_font_face_t> cairoFace(const FontFace& face) {
  cairo_font_face_t* made = cairo_ft_font_face_create_for_ft_face(face.handle(), 0);
  unsigned synthesized = 0;
  if (face.style().syntheticBold) synthesized |= CAIRO_FT_SYNTHESIZE_BOLD;
  if (face.style().syntheticSlant) synthesized |= CAIRO_FT_SYNTHESIZE_OBLIQUE;
  cairo_ft_font_face_set_synthesize(made, synthesized);
  return CairoOwned<cairo_font_face_t>(made);
}

double angleOf(const TextRun& run) {
  return run.record.Escapement * std::numbers::pi / 1800;
}

}  // namespace

bool CairoCanvas::isVisible(const TextRun& run) const {
  // Negative space between characters turns a text back on itself.
  const double overhang = 2.0 * run.font.metrics().height;
  const double reach = std::abs(run.length) + overhang;
  const bool level = run.record.Escapement == 0;
  const double before = level && run.length >= 0 ? overhang : reach;
  const double beside = level ? overhang : reach;
  const Dots first = dots(run.x - before, run.y - beside);
  const Dots last = dots(run.x + reach, run.y + beside);
  return last.x >= 0 && last.y >= 0 && first.x <= size_.x && first.y <= size_.y;
}

void CairoCanvas::useFace(const FontFace& face, const TextRun& run) {
  auto& kept = faces_[&face];
  if (!kept) kept = cairoFace(face);
  cairo_set_font_face(context_.get(), kept.get());
  cairo_matrix_t matrix;
  cairo_matrix_init_scale(&matrix, dotsPerTwip().x, dotsPerTwip().y);
  cairo_matrix_rotate(&matrix, -angleOf(run));
  cairo_matrix_scale(&matrix, run.font.emSize() * run.font.widthScale(), run.font.emSize());
  cairo_set_font_matrix(context_.get(), &matrix);
}

// Glyphs of one face go out together.
void CairoCanvas::showGlyphs(const TextRun& run, Dots direction) {
  const double ascent = run.font.metrics().ascent;
  const Dots base = dots(run.x - direction.y * ascent, run.y + direction.x * ascent);
  const Dots scale = dotsPerTwip();
  const Dots step = {direction.x * scale.x, direction.y * scale.y};
  for (auto glyph = run.glyphs.begin(); glyph != run.glyphs.end();) {
    const FontFace* face = glyph->face;
    const auto first = static_cast<std::size_t>(glyph - run.glyphs.begin());
    glyphs_.clear();
    for (; glyph != run.glyphs.end() && glyph->face == face; ++glyph) {
      glyphs_.push_back(
          {glyph->index, base.x + step.x * glyph->distance, base.y + step.y * glyph->distance});
    }
    useFace(*face, run);
    putGlyphs(context_.get(), run, run.text.substr(first, glyphs_.size()), glyphs_);
  }
}

void CairoCanvas::putGlyphs(cairo_t* context, const TextRun& run, std::u32string_view,
                            std::span<const cairo_glyph_t> glyphs) {
  const int count = static_cast<int>(glyphs.size());
  if (glyphSize(run, dotsPerTwip().y) <= kLargestKept) {
    cairo_show_glyphs(context, glyphs.data(), count);
  } else {
    cairo_glyph_path(context, glyphs.data(), count);
    cairo_fill(context);
  }
}

void CairoCanvas::paintStroke(const TextRun& run, const TextStroke& stroke) {
  const double dotsPerUnit = dotsPerTwip().y;
  const bool whole = grid_ == DotGrid::visible && run.record.Escapement == 0;
  double thickness = std::max(1.0, stroke.thickness * dotsPerUnit);
  double middle = (run.font.metrics().ascent + stroke.offset) * dotsPerUnit;
  const Dots corner = dots(run.x, run.y);
  if (whole) {
    thickness = std::round(thickness);
    middle = std::round(corner.y + middle - thickness / 2) + thickness / 2 - corner.y;
  }
  cairo_save(context_.get());
  cairo_translate(context_.get(), corner.x, corner.y);
  cairo_rotate(context_.get(), -angleOf(run));
  cairo_rectangle(context_.get(), 0, middle - thickness / 2,
                  realDotsFromTwips(run.length, mapping_.dpiX), thickness);
  cairo_restore(context_.get());
  cairo_fill(context_.get());
}

void CairoCanvas::paintText(const TextRun& run) {
  const double size = glyphSize(run, dotsPerTwip().y);
  if (!isVisible(run) || size <= 0 || size > kLargestGlyph) return;
  const double angle = angleOf(run);
  useColor(run.color);
  showGlyphs(run, {std::cos(angle), -std::sin(angle)});
  if (run.record.Underline != 0) paintStroke(run, run.font.underline());
  if (run.record.StrikeOut != 0) paintStroke(run, run.font.strikeOut());
}

void CairoCanvas::clipText(const Rect& rect) {
  const DotBox room = box(rect, kEdgeless);
  const bool columns = rect.right > rect.left;
  const bool rows = rect.bottom > rect.top;
  cairo_save(context_.get());
  cairo_rectangle(context_.get(), columns ? room.left : -kEdgeless, rows ? room.top : -kEdgeless,
                  columns ? room.width() : 2 * kEdgeless, rows ? room.height() : 2 * kEdgeless);
  cairo_clip(context_.get());
}

void CairoCanvas::unclipText() {
  cairo_restore(context_.get());
}

}  // namespace qor
