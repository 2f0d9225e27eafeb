// Handing out codes.
#include "platform/pdf/pdf_glyph_codes.h"

#include <cmath>

#include "platform/fonts/font_face.h"
#include "platform/pdf/embeddable_face.h"

namespace qor {
namespace {

constexpr std::size_t kCodes = 255;  // code 0 stays free
constexpr unsigned char kFirstOther = 0x80;

std::uint64_t keyOf(std::uint32_t glyph, char32_t character) {
  return std::uint64_t{glyph} << 32 | character;
}

double lackOf(double width) {
  return width - std::round(width);
}

}  // namespace

PdfGlyphCodes::KnownFace& PdfGlyphCodes::known(const FontFace& face) {
  if (last_face_ == &face) return *last_;
  const auto [place, isNew] = known_.try_emplace(&face);
  if (isNew) {
    place->second.face = &face;
    place->second.embeds = canBeEmbedded(face);
    if (FT_IS_FIXED_WIDTH(face.handle()))
      place->second.spacing = lackOf(widthOf(face, face.glyphIndex(U' ')));
  }
  last_face_ = &face;
  last_ = &place->second;
  return *last_;
}

// ASCII has its own codes where they are free, so that the operators of pages can be read.
PdfGlyphCode PdfGlyphCodes::add(KnownFace& known, std::uint32_t glyph, char32_t character) {
  if (known.free == 0) {
    known.number = faces_.add(*known.face);
    known.free = kCodes;
  }
  unsigned char code =
      character < kFirstOther ? static_cast<unsigned char>(character) : kFirstOther;
  while (code == 0 || faces_.isDefined(known.number, code)) ++code;
  faces_.define(known.number, code, glyph, character);
  --known.free;
  const double width = widthOf(*known.face, glyph);
  return {known.number, code, lackOf(width) - known.spacing, std::round(width)};
}

PdfGlyphCode PdfGlyphCodes::hiddenCodeOf(char32_t character) {
  const auto face = embeddableFace({"Courier New"});
  const std::uint32_t glyph = face->glyphIndex(U'?');
  KnownFace& kept = known(*face);
  return codeIn(kept.others[keyOf(glyph, character)], kept, glyph, character);
}

PdfGlyphCode PdfGlyphCodes::findCode(const FontFace& face, std::uint32_t glyph,
                                     char32_t character) {
  KnownFace& kept = known(face);
  if (glyph == 0 || !kept.embeds) return {};
  return codeIn(character < kAscii ? kept.ascii[character] : kept.others[keyOf(glyph, character)],
                kept, glyph, character);
}

// The code that is kept, or now is.
const PdfGlyphCode& PdfGlyphCodes::codeIn(PdfGlyphCode& kept, KnownFace& known, std::uint32_t glyph,
                                          char32_t character) {
  if (kept.face == PdfGlyphCode::kNone) kept = add(known, glyph, character);
  return kept;
}

}  // namespace qor
