// Font files, by FreeType.
#include "platform/fonts/font_face.h"

#include <algorithm>

#include FT_ADVANCES_H
#include FT_TRUETYPE_TABLES_H

#include "base/errors.h"

namespace qor {
namespace {

FT_Library library() {
  static const FT_Library handle = [] {
    FT_Library made = nullptr;
    if (FT_Init_FreeType(&made) != 0) throw SystemError("the font system can't be started");
    return made;
  }();
  return handle;
}

// Older tables don't tell how high capitals are. Where there is no H either, it is about this part
// of the ascent in most faces.
double heightOfH(FT_Face face) {
  const FT_UInt glyph = FT_Get_Char_Index(face, 'H');
  if (glyph == 0 || FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) != 0) return face->ascender * 0.75;
  return static_cast<double>(face->glyph->metrics.horiBearingY);
}

void measureCell(FT_Face face, FaceMeasures& measures) {
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  const auto* hhea = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
  measures.ascent = os2 != nullptr ? os2->usWinAscent : face->ascender;
  measures.descent = os2 != nullptr ? os2->usWinDescent : -face->descender;
  measures.averageWidth = os2 != nullptr ? os2->xAvgCharWidth : face->max_advance_width;
  measures.capHeight = os2 != nullptr && os2->version >= 2 ? os2->sCapHeight : heightOfH(face);
  if (hhea != nullptr) {
    const double beyondCell =
        measures.ascent + measures.descent - (hhea->Ascender - hhea->Descender);
    measures.externalLeading = std::max(0.0, hhea->Line_Gap - beyondCell);
  }
}

// Offsets are of the stroke's middle, below the baseline.
void measureStrokes(FT_Face face, FaceMeasures& measures) {
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  measures.underlineOffset = -face->underline_position;
  measures.underlineThickness = face->underline_thickness;
  if (os2 != nullptr) {
    measures.strikeOutThickness = os2->yStrikeoutSize;
    measures.strikeOutOffset = os2->yStrikeoutSize / 2.0 - os2->yStrikeoutPosition;
  } else {
    measures.strikeOutThickness = face->underline_thickness;
    measures.strikeOutOffset = -face->ascender / 3.0;
  }
}

}  // namespace

FontFace::FontFace(const std::string& file, int index, FaceStyle style)
    : file_(file), index_(index), style_(style) {
  if (FT_New_Face(library(), file.c_str(), index, &face_) != 0) {
    throw FileError(file + ": the font can't be read");
  }
  measures_.unitsPerEm = std::max<double>(1, face_->units_per_EM);
  measureCell(face_, measures_);
  measureStrokes(face_, measures_);
}

FontFace::~FontFace() {
  FT_Done_Face(face_);
}

std::uint32_t FontFace::glyphIndex(char32_t character) const {
  return FT_Get_Char_Index(face_, character);
}

double FontFace::advance(std::uint32_t glyph) const {
  FT_Fixed units = 0;
  FT_Get_Advance(face_, glyph, FT_LOAD_NO_SCALE, &units);
  return static_cast<double>(units);
}

}  // namespace qor
