// Fonts of a document: choosing faces, and the codes of their characters.
#include "platform/pdf/pdf_fonts.h"

#include <algorithm>
#include <cmath>

#include "platform/pdf/embeddable_face.h"

namespace qor {
namespace {

// Controls, and bytes without a character.
bool showsNothing(char32_t character) {
  return character < U' ' || (character >= 0x7F && character < 0xA0) || character == U'\xFFFD';
}

}  // namespace

std::size_t PdfFonts::addEncoding(const PdfEncoding& encoding) {
  PdfEncoding& added = encodings_.emplace_back(encoding);
  std::replace_if(added.begin(), added.end(), showsNothing, U' ');
  return encodings_.size() - 1;
}

std::size_t PdfFonts::load(const PdfFontName& name, std::size_t encoding) {
  const std::pair key(name, encoding);
  const auto known = loaded_.find(key);
  if (known != loaded_.end()) return known->second;
  Font font;
  font.request = {name.face, name.bold ? kBoldWeight : kPlainWeight, name.italic};
  font.encoding = encoding;
  const auto face = embeddableFace(font.request);
  font.face = faceNumber(*face, encoding);
  font.capHeight = face->measures().capHeight / face->measures().unitsPerEm;
  fonts_.push_back(font);
  return loaded_[key] = fonts_.size() - 1;
}

std::size_t PdfFonts::faceNumber(const FontFace& face, std::size_t encoding) {
  const auto [place, isNew] = numbers_.try_emplace({&face, encoding});
  if (isNew) place->second = faces_.add(face);
  return place->second;
}

// The glyph of a character in the font's own face, or else in another one; 0 where none has it.
PdfFonts::Outline PdfFonts::outlineOf(const Font& font, char32_t character) {
  const std::uint32_t own = faces_.face(font.face).glyphIndex(character);
  if (own != 0) return {font.face, own};
  const auto other = fallbackFace(font.request, character);
  if (other == nullptr || !canBeEmbedded(*other)) return {font.face, 0};
  return {faceNumber(*other, font.encoding), other->glyphIndex(character)};
}

// Archived documents must not show the glyph that stands for missing ones.
PdfFonts::Glyph PdfFonts::makeGlyph(const Font& font, unsigned char byte) {
  const char32_t character = encodings_[font.encoding][byte];
  Outline outline = outlineOf(font, character);
  if (outline.glyph == 0) outline = outlineOf(font, U'?');
  faces_.define(outline.face, byte, outline.glyph, character);
  const FontFace& face = faces_.face(outline.face);
  const double em = face.measures().unitsPerEm;
  return {static_cast<std::uint32_t>(outline.face),
          static_cast<std::int32_t>(std::lround(face.advance(outline.glyph) * kPartsOfEm / em))};
}

PdfFonts::Run PdfFonts::runOf(std::size_t font, std::string_view text) {
  Font& known = fonts_[font];
  const std::uint32_t face = glyphOf(known, text.front()).face;
  std::int64_t advance = 0;
  std::size_t bytes = 0;
  for (; bytes < text.size(); ++bytes) {
    const Glyph& glyph = glyphOf(known, text[bytes]);
    if (glyph.face != face) break;
    advance += glyph.advance;
  }
  return {face, bytes, static_cast<double>(advance) / kPartsOfEm};
}

}  // namespace qor
