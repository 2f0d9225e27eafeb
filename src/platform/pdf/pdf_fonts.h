// Fonts by name and encoding. A text's bytes are the codes of its font, so that one byte is one
// character; a character that the face lacks comes from another one under the same code.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/fonts/font_catalogue.h"
#include "platform/pdf/pdf_encoding.h"
#include "platform/pdf/pdf_faces.h"
#include "platform/pdf/pdf_font_name.h"

namespace qor {

class PdfFonts {
 public:
  // The faces must live as long.
  explicit PdfFonts(PdfFaces& faces) : faces_(faces) {}

  // The front of a text that one face shows.
  struct Run {
    std::size_t face = 0;
    std::size_t bytes = 0;
    double length = 0;  // in em
  };

  // An encoding for fonts that are loaded later; its number. Controls, and bytes that are U+FFFD,
  // become blanks.
  std::size_t addEncoding(const PdfEncoding& encoding);

  // The best face of the family. The same font again for the same name and encoding. Throws
  // FileError where no font can be embedded.
  std::size_t load(const PdfFontName& name, std::size_t encoding);

  // The text isn't empty.
  Run runOf(std::size_t font, std::string_view text);

  // The height of capital letters, of an em.
  double capHeight(std::size_t font) const { return fonts_[font].capHeight; }

  // Styles that a face lacks and the page has to make.
  FaceStyle styleOf(std::size_t face) const { return faces_.face(face).style(); }

 private:
  // A character in a face: which of the faces, and how far it goes on.
  static constexpr std::uint32_t kUnknown = static_cast<std::uint32_t>(-1);
  static constexpr double kPartsOfEm = 1 << 24;
  struct Glyph {
    std::uint32_t face = kUnknown;
    std::int32_t advance = 0;  // in parts of an em, which add up faster than fractions
  };

  struct Font {
    FaceRequest request;
    std::size_t encoding = 0;
    std::size_t face = 0;
    double capHeight = 0;
    std::array<Glyph, 256> glyphs;
  };

  // A glyph of one of the faces.
  struct Outline {
    std::size_t face = 0;
    std::uint32_t glyph = 0;
  };

  std::size_t faceNumber(const FontFace& face, std::size_t encoding);
  Outline outlineOf(const Font& font, char32_t character);
  Glyph makeGlyph(const Font& font, unsigned char byte);
  const Glyph& glyphOf(Font& font, char byte) {
    Glyph& known = font.glyphs[static_cast<unsigned char>(byte)];
    if (known.face == kUnknown) known = makeGlyph(font, static_cast<unsigned char>(byte));
    return known;
  }

  PdfFaces& faces_;
  std::vector<PdfEncoding> encodings_;
  std::map<std::pair<const FontFace*, std::size_t>, std::size_t> numbers_;  // by encoding
  std::vector<Font> fonts_;
  std::map<std::pair<PdfFontName, std::size_t>, std::size_t> loaded_;
};

}  // namespace qor
