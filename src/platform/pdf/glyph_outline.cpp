// Outlines by FreeType.
#include "platform/pdf/glyph_outline.h"

#include "platform/fonts/font_face.h"

#include FT_OUTLINE_H

namespace qor {
namespace {

struct Pen {
  PdfContent& content;
  const std::function<PdfPoint(double, double)>& place;
  double perEm;
  FT_Vector at{};

  PdfPoint map(double x, double y) const { return place(x / perEm, y / perEm); }
  PdfPoint map(const FT_Vector* point) const {
    return map(static_cast<double>(point->x), static_cast<double>(point->y));
  }
};

template <auto Step>
int straightTo(const FT_Vector* to, void* user) {
  Pen& pen = *static_cast<Pen*>(user);
  (pen.content.*Step)(pen.map(to));
  pen.at = *to;
  return 0;
}

int cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
  Pen& pen = *static_cast<Pen*>(user);
  pen.content.curveTo(pen.map(control1), pen.map(control2), pen.map(to));
  pen.at = *to;
  return 0;
}

// A curve with one control point is one with both of them two thirds of the way to it.
int conicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
  Pen& pen = *static_cast<Pen*>(user);
  const auto between = [](FT_Pos end, FT_Pos bend) {
    return (static_cast<double>(end) + 2 * static_cast<double>(bend)) / 3;
  };
  const auto towards = [&](const FT_Vector& end) {
    return pen.map(between(end.x, control->x), between(end.y, control->y));
  };
  pen.content.curveTo(towards(pen.at), towards(*to), pen.map(to));
  pen.at = *to;
  return 0;
}

}  // namespace

void drawGlyphOutline(const FontFace& face, std::uint32_t glyph, bool bold, PdfContent& content,
                      const std::function<PdfPoint(double, double)>& place) {
  const FT_Face handle = face.handle();
  // Cairo leaves the turn of its last text with the face.
  if (FT_Load_Glyph(handle, glyph, FT_LOAD_NO_SCALE | FT_LOAD_IGNORE_TRANSFORM) != 0) return;
  FT_Outline& outline = handle->glyph->outline;
  if (handle->glyph->format != FT_GLYPH_FORMAT_OUTLINE || outline.n_points == 0) return;
  Pen pen = {content, place, face.measures().unitsPerEm};
  constexpr FT_Outline_Funcs kSteps = {
      straightTo<&PdfContent::moveTo>, straightTo<&PdfContent::lineTo>, conicTo, cubicTo, 0, 0};
  content.prepareFill();
  if (FT_Outline_Decompose(&outline, &kSteps, &pen) == 0)
    content.paint(bold ? PdfPainting::fillAndStroke : PdfPainting::fill);
}

}  // namespace qor
