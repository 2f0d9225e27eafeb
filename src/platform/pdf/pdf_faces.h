// The faces of a document: font files that are cut down to what the pages show. A face has codes of
// one byte; where pages need more of its glyphs, it stands in the document once more.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/pdf/pdf_file.h"

namespace qor {

class FontFace;
struct FontSubset;

class PdfFaces {
 public:
  // The number of a face without codes; that of its resource is "F" with it. Faces live as long as
  // the process.
  std::size_t add(const FontFace& face);

  // The code shows this glyph and is read as this character.
  void define(std::size_t number, unsigned char code, std::uint32_t glyph, char32_t character);

  bool isDefined(std::size_t number, unsigned char code) const {
    return faces_[number].used.test(code);
  }
  const FontFace& face(std::size_t number) const { return *faces_[number].face; }

  // Readers may round the widths of letters to whole thousandths of an em, and lines drift. Where
  // this was called the document tells whole ones: whoever shows a text makes up for the rest.
  void useWholeWidths() { whole_widths_ = true; }

  // Writes the fonts and, as `dictionary`, their names. Throws FileError.
  void write(PdfFile& file, PdfId dictionary) const;

 private:
  struct Code {
    std::uint32_t glyph = 0;
    char32_t character = 0;
  };

  struct Face {
    const FontFace* face = nullptr;
    std::bitset<256> used;
    std::array<Code, 256> codes{};
  };

  // The ways from codes to glyphs and to characters.
  struct Maps {
    PdfId encoding = 0;
    PdfId unicode = 0;
  };

  PdfId writeDescendant(PdfFile& file, const FontFace& face, const FontSubset& subset,
                        const std::string& name) const;
  Maps writeMaps(PdfFile& file, std::size_t number, const FontSubset& subset) const;
  PdfId writeFace(PdfFile& file, std::size_t number) const;

  std::vector<Face> faces_;
  bool whole_widths_ = false;
};

// In thousandths of an em, as documents have it.
double widthOf(const FontFace& face, std::uint32_t glyph);

// Only outlines in tables can be cut to subsets, and PDF knows those of TrueType and CFF.
bool canBeEmbedded(const FontFace& face);

}  // namespace qor
