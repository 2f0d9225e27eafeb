// Fonts of a document: choosing faces, and the codes of their characters.
#include "platform/pdf/pdf_fonts.h"

#include <algorithm>

#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

#include "base/errors.h"
#include "platform/fonts/font_face.h"

namespace qor {
namespace {

// Controls, and bytes without a character.
bool showsNothing(char32_t character) {
  return character < U' ' || (character >= 0x7F && character < 0xA0) || character == U'\xFFFD';
}

bool hasTable(const FontFace& face, FT_ULong tag) {
  FT_ULong length = 0;
  return FT_Load_Sfnt_Table(face.handle(), tag, 0, nullptr, &length) == 0 && length > 0;
}

// Only outlines in tables can be cut to subsets, and PDF knows those of TrueType and CFF.
bool canBeEmbedded(const FontFace& face) {
  return FT_IS_SFNT(face.handle()) != 0 && (hasTable(face, TTAG_glyf) || hasTable(face, TTAG_CFF));
}

std::shared_ptr<const FontFace> embeddableFace(FaceRequest request) {
  auto face = matchFace(request);
  if (canBeEmbedded(*face)) return face;
  request.family = "Courier New";
  face = matchFace(request);
  if (canBeEmbedded(*face)) return face;
  throw FileError(face->file() + ": the font can't be embedded");
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
  font.face = faceNumber(face, encoding);
  font.capHeight = face->measures().capHeight / face->measures().unitsPerEm;
  fonts_.push_back(font);
  return loaded_[key] = fonts_.size() - 1;
}

std::size_t PdfFonts::faceNumber(const std::shared_ptr<const FontFace>& face,
                                 std::size_t encoding) {
  const auto found = std::find_if(faces_.begin(), faces_.end(), [&](const Face& known) {
    return known.face == face && known.encoding == encoding;
  });
  if (found != faces_.end()) return static_cast<std::size_t>(found - faces_.begin());
  Face added;
  added.face = face;
  added.encoding = encoding;
  faces_.push_back(added);
  return faces_.size() - 1;
}

// The glyph of a character in the font's own face, or else in another one; 0 where none has it.
PdfFonts::Outline PdfFonts::outlineOf(const Font& font, char32_t character) {
  const std::uint32_t own = faces_[font.face].face->glyphIndex(character);
  if (own != 0) return {font.face, own};
  const auto other = fallbackFace(font.request, character);
  if (other == nullptr || !canBeEmbedded(*other)) return {font.face, 0};
  return {faceNumber(other, font.encoding), other->glyphIndex(character)};
}

// Archived documents must not show the glyph that stands for missing ones.
PdfFonts::Glyph PdfFonts::makeGlyph(const Font& font, unsigned char byte) {
  Outline outline = outlineOf(font, encodings_[font.encoding][byte]);
  if (outline.glyph == 0) outline = outlineOf(font, U'?');
  Face& face = faces_[outline.face];
  face.used.set(byte);
  face.glyphs[byte] = outline.glyph;
  return {outline.face, face.face->advance(outline.glyph) / face.face->measures().unitsPerEm};
}

void PdfFonts::write(PdfFile& file, PdfId dictionary) const {
  std::string names = "<<";
  for (std::size_t i = 0; i < faces_.size(); ++i) {
    if (faces_[i].used.none()) continue;
    names += "/F" + std::to_string(i) + " " + pdfReference(writeFace(file, i));
  }
  file.writeObject(dictionary, names + ">>");
}

}  // namespace qor
