// Fonts by name and encoding. A text's bytes are the codes of its font, so that one byte is one
// character; a character that the face lacks comes from another one under the same code.
#pragma once

#include <array>
#include <map>
#include <memory>
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

  // A character in a face: which of the faces, and how far it goes on.
  static constexpr std::size_t kUnknown = static_cast<std::size_t>(-1);
  struct Glyph {
    std::size_t face = kUnknown;
    double advance = 0;  // of an em
  };

  // An encoding for fonts that are loaded later; its number. Controls, and bytes that are U+FFFD,
  // become blanks.
  std::size_t addEncoding(const PdfEncoding& encoding);

  // The best face of the family. The same font again for the same name and encoding. Throws
  // FileError where no font can be embedded.
  std::size_t load(const PdfFontName& name, std::size_t encoding);

  const Glyph& glyph(std::size_t font, unsigned char byte) {
    Glyph& known = fonts_[font].glyphs[byte];
    if (known.face == kUnknown) known = makeGlyph(fonts_[font], byte);
    return known;
  }

  // The height of capital letters, of an em.
  double capHeight(std::size_t font) const { return fonts_[font].capHeight; }

  // Styles that a face lacks and the page has to make.
  FaceStyle styleOf(std::size_t face) const { return faces_.face(face).style(); }

 private:
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

  PdfFaces& faces_;
  std::vector<PdfEncoding> encodings_;
  std::map<std::pair<const FontFace*, std::size_t>, std::size_t> numbers_;  // by encoding
  std::vector<Font> fonts_;
  std::map<std::pair<PdfFontName, std::size_t>, std::size_t> loaded_;
};

}  // namespace qor
