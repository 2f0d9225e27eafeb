// The codes of glyphs in a document: handed out as the pages ask for them. The document tells whole
// widths; what they lack is told here, in thousandths of an em.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "platform/pdf/pdf_faces.h"

namespace qor {

struct PdfGlyphCode {
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  std::size_t face = kNone;  // of PdfFaces
  unsigned char code = 0;
  double drift = 0;  // how much wider it is than the document tells and the face's spacing makes up
  double width = 0;  // as the document tells it
};

class PdfGlyphCodes {
 public:
  // The faces must live as long.
  explicit PdfGlyphCodes(PdfFaces& faces) : faces_(faces) { faces.useWholeWidths(); }

  // The code of a character's glyph. None for the mark of missing characters, which documents for
  // archives must not show, and for faces that can't be embedded.
  PdfGlyphCode codeOf(const FontFace& face, std::uint32_t glyph, char32_t character) {
    if (&face == last_face_ && character < kAscii) {
      const PdfGlyphCode& known = last_->ascii[character];
      if (known.face != PdfGlyphCode::kNone) return known;
    }
    return findCode(face, glyph, character);
  }

  // A code that is read as this character, whatever it shows.
  PdfGlyphCode hiddenCodeOf(char32_t character);

  // The same lack of all letters of a fixed pitch, which a space behind each makes up; else 0.
  double spacingOf(const FontFace& face) { return known(face).spacing; }

 private:
  static constexpr std::size_t kAscii = 128;

  struct KnownFace {
    const FontFace* face = nullptr;
    bool embeds = false;
    double spacing = 0;
    std::size_t number = 0;  // where codes are still free
    std::size_t free = 0;    // of them
    std::array<PdfGlyphCode, kAscii> ascii;
    std::unordered_map<std::uint64_t, PdfGlyphCode> others;  // by glyph and character
  };

  PdfGlyphCode findCode(const FontFace& face, std::uint32_t glyph, char32_t character);
  KnownFace& known(const FontFace& face);
  const PdfGlyphCode& codeIn(PdfGlyphCode& kept, KnownFace& known, std::uint32_t glyph,
                             char32_t character);
  PdfGlyphCode add(KnownFace& known, std::uint32_t glyph, char32_t character);

  PdfFaces& faces_;
  std::unordered_map<const FontFace*, KnownFace> known_;
  const FontFace* last_face_ = nullptr;
  KnownFace* last_ = nullptr;
};

}  // namespace qor
