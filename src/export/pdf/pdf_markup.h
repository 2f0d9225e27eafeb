// Lines as records of bracket markup, the language between the items of a report and the writer of
// PDF pages. A record is a text followed by fields "[name:value:name]", which are found by
// searching for their marks. What the report itself holds is written so that none of it is a mark.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

class VDocStr;

// The records of each line.
using PdfLines = std::vector<std::vector<std::string>>;

// The record that ends a page and starts the next one.
inline constexpr char kPageMark = '\f';

// Appends the records of a line, one for each item, to list number `index`. The first of them ends
// with a line feed for each item.
void LineToMarkup(const VDocStr& line, PdfLines& lines, std::size_t index);

// The fields of a record.
enum class PdfField {
  // Of texts.
  fontName,
  fontSize,
  fontColor,
  fontBold,
  fontItalic,
  textLeft,
  textTop,
  textAngle,
  textContent,
  textRight,
  textBottom,
  textAcross,
  textAlong,
  // Of shapes; the box is that of barcodes, too.
  shapeType,
  boxLeft,
  boxTop,
  boxRight,
  boxBottom,
  boxColor,
  penType,
  barcodeValue,
  // Of pictures.
  imageType,
  imageFile,
  imageLeft,
  imageTop,
  imageRight,
  imageBottom,
  imageColor,
  imageStretch,
  count
};

// A text or value of the report as it was before it was written. Kept in the buffer where it held
// what could have been marks.
std::string_view asReported(std::string_view value, std::string& buffer);

// A record as it is read: the values of its fields, each where its marks are found first.
class MarkupRecord {
 public:
  // The record must live as long.
  explicit MarkupRecord(std::string_view record);

  // Empty where the field isn't there.
  std::string_view operator[](PdfField field) const {
    return values_[static_cast<std::size_t>(field)];
  }
  // True where the field starts, whether it ends or not.
  bool has(PdfField field) const { return has_[static_cast<std::size_t>(field)]; }

  // What stands before the name of the font; nothing where there is none.
  std::string_view plainText() const { return plain_text_; }

  bool startsLine() const { return whole_.find('\n') != std::string_view::npos; }
  bool startsPage() const { return whole_.find(kPageMark) != std::string_view::npos; }

 private:
  static constexpr auto kCount = static_cast<std::size_t>(PdfField::count);

  std::string_view whole_;
  std::string_view plain_text_;
  std::array<std::string_view, kCount> values_{};
  std::array<bool, kCount> has_{};
};

}  // namespace qor
