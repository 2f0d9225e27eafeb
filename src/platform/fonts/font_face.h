// Font files, for the files of platform/ that draw with them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace qor {

// What makes a face differ from its file: styles that the family lacks.
struct FaceStyle {
  bool syntheticBold = false;
  bool syntheticSlant = false;

  bool operator==(const FaceStyle&) const = default;
};

// Vertical measurements of a face, in font units, as the Windows text mapper counts them.
struct FaceMeasures {
  double unitsPerEm = 0;
  double ascent = 0;           // OS/2 usWinAscent
  double descent = 0;          // OS/2 usWinDescent
  double externalLeading = 0;  // hhea gap beyond the cell
  double averageWidth = 0;     // OS/2 xAvgCharWidth
  double capHeight = 0;        // OS/2 sCapHeight, or that of "H"
  double underlineOffset = 0;
  double underlineThickness = 0;
  double strikeOutOffset = 0;
  double strikeOutThickness = 0;
};

class FontFace {
 public:
  // Throws FileError where the file is no scalable font.
  FontFace(const std::string& file, int index, FaceStyle style);
  ~FontFace();
  FontFace(const FontFace&) = delete;
  FontFace& operator=(const FontFace&) = delete;

  const std::string& file() const { return file_; }
  int index() const { return index_; }
  FT_Face handle() const { return face_; }
  FaceStyle style() const { return style_; }
  const FaceMeasures& measures() const { return measures_; }

  // 0 where the face lacks the character.
  std::uint32_t glyphIndex(char32_t character) const;
  double advance(std::uint32_t glyph) const;  // font units

 private:
  std::string file_;
  int index_;
  FT_Face face_ = nullptr;
  FaceStyle style_;
  FaceMeasures measures_;
};

}  // namespace qor
