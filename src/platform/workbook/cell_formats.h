// How cells look: fonts and number formats, each pair of them a format that cells name by its
// number.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace qor {

struct CellFont {
  std::string name = "Arial";  // UTF-8
  std::int32_t size = 10;      // points
  std::int32_t charset = 0;    // Windows number
  std::int32_t colour = 8;     // entry of the palette, kFirstColour to 63
  bool bold = false;
  bool italic = false;

  bool operator<(const CellFont& other) const {
    return std::tie(name, size, charset, colour, bold, italic) <
           std::tie(other.name, other.size, other.charset, other.colour, other.bold, other.italic);
  }
};

inline constexpr std::int32_t kFirstColour = 8;  // black

// 0x00RRGGBB of an entry of the palette that spreadsheets start with, from kFirstColour to 63.
std::uint32_t paletteColour(std::int32_t entry);

// Decimals follow each other.
enum class NumberFormat : std::uint8_t {
  general,
  whole,
  oneDecimal,
  twoDecimals,
  threeDecimals,
  fourDecimals,
  fiveDecimals,
  sixDecimals,
  date
};

// Such as "#,##0.00", and the number by which files name it.
std::string_view formatCode(NumberFormat format);
std::uint32_t formatNumber(NumberFormat format);

struct CellFormat {
  std::size_t font = 0;
  NumberFormat number = NumberFormat::general;

  bool operator<(const CellFormat& other) const {
    return std::tie(font, number) < std::tie(other.font, other.number);
  }
};

// The formats of a workbook. Number 0 is what empty cells have.
class CellFormats {
 public:
  CellFormats() { numberOf({}, NumberFormat::general); }

  // The number of the format. A workbook holds only so many fonts: what comes behind has the font
  // of number 0.
  std::uint32_t numberOf(const CellFont& font, NumberFormat number);

  // How often that was so.
  std::int64_t fontsLeftOut() const { return fonts_left_out_; }

  const std::vector<CellFont>& fonts() const { return fonts_; }
  const std::vector<CellFormat>& formats() const { return formats_; }

 private:
  std::size_t fontNumberOf(const CellFont& font);

  std::vector<CellFont> fonts_;
  std::vector<CellFormat> formats_;
  std::map<CellFont, std::size_t> font_numbers_;
  std::map<CellFormat, std::uint32_t> format_numbers_;
  std::int64_t fonts_left_out_ = 0;
};

}  // namespace qor
