// Which codes of which faces are in use.
#include "platform/pdf/pdf_faces.h"

#include "platform/fonts/font_face.h"

#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

namespace qor {
namespace {

bool hasTable(const FontFace& face, FT_ULong tag) {
  FT_ULong length = 0;
  return FT_Load_Sfnt_Table(face.handle(), tag, 0, nullptr, &length) == 0 && length > 0;
}

}  // namespace

bool canBeEmbedded(const FontFace& face) {
  return FT_IS_SFNT(face.handle()) != 0 && (hasTable(face, TTAG_glyf) || hasTable(face, TTAG_CFF));
}

double widthOf(const FontFace& face, std::uint32_t glyph) {
  return face.advance(glyph) * 1000 / face.measures().unitsPerEm;
}

std::size_t PdfFaces::add(const FontFace& face) {
  faces_.emplace_back().face = &face;
  return faces_.size() - 1;
}

void PdfFaces::define(std::size_t number, unsigned char code, std::uint32_t glyph,
                      char32_t character) {
  faces_[number].used.set(code);
  faces_[number].codes[code] = {glyph, character};
}

void PdfFaces::write(PdfFile& file, PdfId dictionary) const {
  std::string names = "<<";
  for (std::size_t i = 0; i < faces_.size(); ++i) {
    if (faces_[i].used.none()) continue;
    names += "/F" + std::to_string(i) + " " + pdfReference(writeFace(file, i));
  }
  file.writeObject(dictionary, names + ">>");
}

}  // namespace qor
