// A face in the file: its subset, what its codes mean, and its measurements (ISO 32000-1, 9.7 and
// 9.8). A composite font with a map of one byte a code works alike for every encoding.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>
#include <set>

#include "platform/fonts/font_face.h"
#include "platform/pdf/font_subset.h"
#include "platform/pdf/pdf_faces.h"

#include FT_CID_H
#include FT_TRUETYPE_TABLES_H

namespace qor {
namespace {

constexpr std::size_t kMaxMapRows = 100;  // of one block of a character map
constexpr const char* kSystemInfo = "<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>";

enum FontFlag { kFixedPitch = 1, kSymbolic = 4, kItalic = 64 };

// Rows of a character map in blocks of "n beginX" to "endX".
class MapRows {
 public:
  explicit MapRows(const char* kind) : kind_(kind) {}

  void add(const std::string& row) {
    if (count_ == kMaxMapRows) endBlock();
    block_ += row + "\n";
    ++count_;
  }

  std::string take() {
    endBlock();
    return text_;
  }

 private:
  void endBlock() {
    if (count_ == 0) return;
    text_ += std::to_string(count_) + " begin" + kind_ + "\n" + block_ + "end" + kind_ + "\n";
    block_.clear();
    count_ = 0;
  }

  const char* kind_;
  std::string text_;
  std::string block_;
  std::size_t count_ = 0;
};

std::string hex(unsigned value, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "<%0*X>", digits, value);
  return text;
}

// Type 1 leads to glyphs, type 2 to Unicode.
std::string characterMap(const std::string& name, int type, const std::string& rows) {
  return "/CIDInit/ProcSet findresource begin\n12 dict begin\nbegincmap\n/CIDSystemInfo " +
         std::string(kSystemInfo) + " def\n/CMapName/" + name + " def\n/CMapType " +
         std::to_string(type) +
         " def\n/WMode 0 def\n1 begincodespacerange\n<00><FF>\n"
         "endcodespacerange\n" +
         rows + "endcmap\nCMapName currentdict/CMap defineresource pop\nend\nend\n";
}

std::string utf16Hex(char32_t c) {
  if (c < 0x10000) return hex(c, 4);
  const auto rest = static_cast<unsigned>(c - 0x10000);
  return hex((0xD800 + (rest >> 10)) << 16 | (0xDC00 + (rest & 0x3FF)), 8);
}

// The name of the face in front of which a subset has to bear six letters of its own.
std::string subsetName(const FontFace& face, std::size_t number, std::size_t glyphs) {
  std::string name;
  auto mark = static_cast<unsigned>(number * 7919 + glyphs * 104729);
  for (int i = 0; i < 6; ++i, mark = mark / 26 + 31 * static_cast<unsigned>(i)) {
    name += static_cast<char>('A' + mark % 26);
  }
  name += '+';
  const char* own = FT_Get_Postscript_Name(face.handle());
  for (const char* c = own == nullptr ? "Font" : own; *c != '\0'; ++c) {
    if (std::isalnum(static_cast<unsigned char>(*c)) != 0 || *c == '-') name += *c;
  }
  return name;
}

std::string descriptorOf(const FontFace& face, const std::string& name, bool hasCff, PdfId file) {
  const FT_Face handle = face.handle();
  const double perEm = 1000 / face.measures().unitsPerEm;
  const auto* post = static_cast<const TT_Postscript*>(FT_Get_Sfnt_Table(handle, FT_SFNT_POST));
  const double angle = post == nullptr ? 0 : static_cast<double>(post->italicAngle) / 65536;
  const int flags = kSymbolic | (FT_IS_FIXED_WIDTH(handle) ? kFixedPitch : 0) |
                    ((handle->style_flags & FT_STYLE_FLAG_ITALIC) != 0 ? kItalic : 0);
  return "<</Type/FontDescriptor/FontName/" + name + "/Flags " + std::to_string(flags) +
         "/FontBBox[" +
         pdfNumbers({static_cast<double>(handle->bbox.xMin) * perEm,
                     static_cast<double>(handle->bbox.yMin) * perEm,
                     static_cast<double>(handle->bbox.xMax) * perEm,
                     static_cast<double>(handle->bbox.yMax) * perEm}) +
         "]/ItalicAngle " + pdfNumbers({angle}) + "/Ascent " +
         pdfNumbers({handle->ascender * perEm}) + "/Descent " +
         pdfNumbers({handle->descender * perEm}) + "/CapHeight " +
         pdfNumbers({face.measures().capHeight * perEm}) + "/StemV 80/FontFile" +
         (hasCff ? "3 " : "2 ") + pdfReference(file) + ">>";
}

std::string widthsOf(const FontFace& face, const FontSubset& subset, bool whole) {
  std::map<std::uint32_t, double> widths;
  for (const auto& [glyph, place] : subset.places) {
    const double width = widthOf(face, glyph);
    widths[place] = whole ? std::round(width) : width;
  }
  std::string text = "[";
  std::uint32_t next = 0;
  for (const auto& [place, width] : widths) {
    if (text.size() == 1 || place != next) {
      text += (text.size() == 1 ? "" : "]") + std::to_string(place) + "[";
    } else {
      text += ' ';
    }
    appendNumber(text, width);
    next = place + 1;
  }
  return text + "]]";
}

// Fonts whose glyphs have numbers of their own keep them, and are asked for them (9.7.4.2).
// FreeType finds none in all other fonts.
void useCharacterIds(FT_Face face, FontSubset& subset) {
  for (auto& [glyph, place] : subset.places) {
    FT_UInt id = 0;
    if (FT_Get_CID_From_Glyph_Index(face, glyph, &id) == 0) place = id;
  }
}

}  // namespace

// The font without its codes.
PdfId PdfFaces::writeDescendant(PdfFile& file, const FontFace& face, const FontSubset& subset,
                                const std::string& name) const {
  const PdfId program = file.addStream(
      subset.hasCff ? "/Subtype/CIDFontType0C" : "/Length1 " + std::to_string(subset.bytes.size()),
      subset.bytes);
  const PdfId descriptor = file.addObject(descriptorOf(face, name, subset.hasCff, program));
  return file.addObject(std::string("<</Type/Font/Subtype/CIDFontType") +
                        (subset.hasCff ? "0" : "2") + "/BaseFont/" + name + "/CIDSystemInfo" +
                        kSystemInfo + "/FontDescriptor " + pdfReference(descriptor) +
                        (subset.hasCff ? "" : "/CIDToGIDMap/Identity") + "/W" +
                        widthsOf(face, subset, whole_widths_) + ">>");
}

PdfFaces::Maps PdfFaces::writeMaps(PdfFile& file, std::size_t number,
                                   const FontSubset& subset) const {
  const Face& face = faces_[number];
  MapRows codes("cidchar");
  MapRows characters("bfchar");
  for (unsigned code = 0; code < face.used.size(); ++code) {
    if (!face.used.test(code)) continue;
    codes.add(hex(code, 2) + " " + std::to_string(subset.places.at(face.codes[code].glyph)));
    characters.add(hex(code, 2) + utf16Hex(face.codes[code].character));
  }
  const std::string name = "QOR-" + std::to_string(number);
  const PdfId encoding =
      file.addStream("/Type/CMap/CMapName/" + name + "/CIDSystemInfo" + kSystemInfo + "/WMode 0",
                     characterMap(name, 1, codes.take()));
  const PdfId unicode = file.addStream("", characterMap(name + "-U", 2, characters.take()));
  return {encoding, unicode};
}

PdfId PdfFaces::writeFace(PdfFile& file, std::size_t number) const {
  const Face& face = faces_[number];
  std::set<std::uint32_t> glyphs;
  for (std::size_t code = 0; code < face.used.size(); ++code) {
    if (face.used.test(code)) glyphs.insert(face.codes[code].glyph);
  }
  FontSubset subset = subsetFont(face.face->file(), face.face->index(), glyphs);
  useCharacterIds(face.face->handle(), subset);
  const std::string name = subsetName(*face.face, number, glyphs.size());
  const PdfId descendant = writeDescendant(file, *face.face, subset, name);
  const auto [encoding, unicode] = writeMaps(file, number, subset);
  return file.addObject("<</Type/Font/Subtype/Type0/BaseFont/" + name + "/Encoding " +
                        pdfReference(encoding) + "/DescendantFonts[" + pdfReference(descendant) +
                        "]/ToUnicode " + pdfReference(unicode) + ">>");
}

}  // namespace qor
