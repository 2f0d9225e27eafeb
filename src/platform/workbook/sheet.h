// A sheet while it is filled: cells in any order, of which the last one at a place holds, pictures,
// and widths of columns. Its memory serves the next sheet.
#pragma once

#include <bit>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

struct Cell {
  static constexpr std::uint32_t kNumber = 0xFFFFFFFF;

  std::uint32_t row = 0;  // from 0, as its column
  std::uint32_t column = 0;
  std::uint32_t format = 0;   // of CellFormats
  std::uint32_t length = 0;   // of the text, bytes; kNumber for a number
  std::uint64_t content = 0;  // where the text starts in the sheet's texts, or the number's bits

  bool isText() const { return length != kNumber; }
  double number() const { return std::bit_cast<double>(content); }
  std::uint64_t place() const { return std::uint64_t{row} << 32 | column; }
};

struct SheetPicture {
  std::uint32_t row = 0;
  std::uint32_t column = 0;
  std::size_t picture = 0;  // of the workbook
  int width = 0;            // pixels, of which 96 make an inch
  int height = 0;
};

inline constexpr std::uint32_t kUsualRowHeight = 255;  // twips, of a font of 10 points

class Sheet {
 public:
  // Where its cells stand: rows and columns from the first up to, but not with, the end.
  struct Extent {
    std::uint32_t firstRow = 0;
    std::uint32_t endRow = 0;
    std::uint32_t firstColumn = 0;
    std::uint32_t endColumn = 0;
  };

  void writeText(std::uint32_t row, std::uint32_t column, std::uint32_t format,
                 std::string_view utf8);
  void writeNumber(std::uint32_t row, std::uint32_t column, std::uint32_t format, double number);
  void addPicture(const SheetPicture& picture) { pictures_.push_back(picture); }
  // In characters of the format 0.
  void setColumnWidth(std::uint32_t column, std::uint32_t width) { widths_[column] = width; }

  // Makes the row as high as a font of that many points needs, unless it is higher.
  void raiseRow(std::uint32_t row, std::int32_t fontSize);

  // Row by row and each from the left.
  const std::vector<Cell>& cells() const;
  std::string_view textOf(const Cell& cell) const {
    return {texts_.data() + cell.content, cell.length};
  }
  const std::vector<SheetPicture>& pictures() const { return pictures_; }
  const std::map<std::uint32_t, std::uint32_t>& columnWidths() const { return widths_; }
  // Twips, of rows that are not of the usual height.
  const std::map<std::uint32_t, std::uint32_t>& rowHeights() const { return heights_; }
  Extent extent() const;
  // How many cells were replaced by later ones at their place.
  std::int64_t replacedCells() const;

  void clear();

 private:
  void add(const Cell& cell);

  mutable std::vector<Cell> cells_;
  mutable std::size_t ordered_ = 0;  // so many of the first cells stand row by row
  mutable std::int64_t replaced_ = 0;
  std::string texts_;
  std::vector<SheetPicture> pictures_;
  std::map<std::uint32_t, std::uint32_t> widths_;
  std::map<std::uint32_t, std::uint32_t> heights_;
};

}  // namespace qor
