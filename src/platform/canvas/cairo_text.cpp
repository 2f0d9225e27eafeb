// Text by Cairo on FreeType faces.
#include <algorithm>
#include <cmath>

#include <cairo-ft.h>

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

CairoOwned<cairo_font_face_t> cairoFace(const FontFace& face) {
  cairo_font_face_t* made = cairo_ft_font_face_create_for_ft_face(face.handle(), 0);
  unsigned synthesized = 0;
  if (face.style().syntheticBold) synthesized |= CAIRO_FT_SYNTHESIZE_BOLD;
  if (face.style().syntheticSlant) synthesized |= CAIRO_FT_SYNTHESIZE_OBLIQUE;
  cairo_ft_font_face_set_synthesize(made, synthesized);
  return CairoOwned<cairo_font_face_t>(made);
}

}  // namespace

void CairoCanvas::useFace(const FontFace& face, const TextRun& run) {
  auto& kept = faces_[&face];
  if (!kept) kept = cairoFace(face);
  cairo_set_font_face(context_.get(), kept.get());
  cairo_matrix_t matrix;
  cairo_matrix_init_scale(&matrix, space_.dotsPerUnit().x, space_.dotsPerUnit().y);
  cairo_matrix_rotate(&matrix, -run.angle);
  cairo_matrix_scale(&matrix, run.font.emSize() * run.font.widthScale(), run.font.emSize());
  cairo_set_font_matrix(context_.get(), &matrix);
}

// Glyphs of one face go out together.
void CairoCanvas::showGlyphs(const TextRun& run, Dots direction) {
  const double ascent = run.font.metrics().ascent;
  const Dots base = space_.dots(run.x - direction.y * ascent, run.y + direction.x * ascent);
  const Dots scale = space_.dotsPerUnit();
  const Dots step = {direction.x * scale.x, direction.y * scale.y};
  for (auto glyph = run.glyphs.begin(); glyph != run.glyphs.end();) {
    const FontFace* face = glyph->face;
    glyphs_.clear();
    for (; glyph != run.glyphs.end() && glyph->face == face; ++glyph) {
      glyphs_.push_back(
          {glyph->index, base.x + step.x * glyph->distance, base.y + step.y * glyph->distance});
    }
    useFace(*face, run);
    putGlyphs(run);
  }
}

void CairoCanvas::putGlyphs(const TextRun& run) {
  const int count = static_cast<int>(glyphs_.size());
  if (glyphSize(run, space_.dotsPerUnit().y) <= kLargestKept) {
    cairo_show_glyphs(context_.get(), glyphs_.data(), count);
  } else {
    cairo_glyph_path(context_.get(), glyphs_.data(), count);
    cairo_fill(context_.get());
  }
}

void CairoCanvas::paintStroke(const TextRun& run, const TextStroke& stroke) {
  const double dotsPerUnit = space_.dotsPerUnit().y;
  double thickness = std::max(1.0, stroke.thickness * dotsPerUnit);
  double middle = (run.font.metrics().ascent + stroke.offset) * dotsPerUnit;
  const Dots corner = space_.dots(run.x, run.y);
  if (run.level()) {
    thickness = std::round(thickness);
    middle = std::round(corner.y + middle - thickness / 2) + thickness / 2 - corner.y;
  }
  cairo_save(context_.get());
  cairo_translate(context_.get(), corner.x, corner.y);
  cairo_rotate(context_.get(), -run.angle);
  cairo_rectangle(context_.get(), 0, middle - thickness / 2, space_.dotsAcross(run.length),
                  thickness);
  cairo_restore(context_.get());
  cairo_fill(context_.get());
}

void CairoCanvas::paintText(const TextRun& run) {
  const double size = glyphSize(run, space_.dotsPerUnit().y);
  if (!space_.shows(run) || size <= 0 || size > kLargestGlyph) return;
  useColor(run.color);
  showGlyphs(run, {std::cos(run.angle), -std::sin(run.angle)});
  if (run.record.Underline != 0) paintStroke(run, run.font.underline());
  if (run.record.StrikeOut != 0) paintStroke(run, run.font.strikeOut());
}

void CairoCanvas::clipText(const Rect& rect) {
  const DotBox clip = space_.textClip(rect);
  cairo_save(context_.get());
  cairo_rectangle(context_.get(), clip.left, clip.top, clip.width(), clip.height());
  cairo_clip(context_.get());
}

void CairoCanvas::unclipText() {
  cairo_restore(context_.get());
}

}  // namespace qor
