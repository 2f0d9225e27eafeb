// Formats of cells.
#include "platform/workbook/cell_formats.h"

#include <array>

namespace qor {
namespace {

// Programs read 512 fonts and 4,000 formats: these with all number formats, and those of the file.
constexpr std::size_t kMostFonts = 440;

constexpr std::array<std::uint32_t, 56> kPalette = {
    0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,
    0x800000, 0x008000, 0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080,
    0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF, 0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF,
    0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000, 0x008080, 0x0000FF,
    0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
    0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696,
    0x003366, 0x339966, 0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333};

constexpr std::array<std::string_view, 9> kCodes = {"General",     "#,##0",        "#,##0.0",
                                                    "#,##0.00",    "#,##0.000",    "#,##0.0000",
                                                    "#,##0.00000", "#,##0.000000", "dd/mm/yyyy"};

}  // namespace

std::uint32_t paletteColour(std::int32_t entry) {
  return kPalette.at(static_cast<std::size_t>(entry - kFirstColour));
}

std::string_view formatCode(NumberFormat format) {
  return kCodes.at(static_cast<std::size_t>(format));
}

std::uint32_t formatNumber(NumberFormat format) {
  constexpr std::uint32_t kFirstOwn = 164;
  return format == NumberFormat::general ? 0 : kFirstOwn + static_cast<std::uint32_t>(format);
}

std::size_t CellFormats::fontNumberOf(const CellFont& font) {
  const auto known = font_numbers_.find(font);
  if (known != font_numbers_.end()) return known->second;
  if (fonts_.size() == kMostFonts) {
    ++fonts_left_out_;
    return font_numbers_[font] = 0;
  }
  fonts_.push_back(font);
  return font_numbers_[font] = fonts_.size() - 1;
}

std::uint32_t CellFormats::numberOf(const CellFont& font, NumberFormat number) {
  const CellFormat format = {fontNumberOf(font), number};
  const auto next = static_cast<std::uint32_t>(formats_.size());
  const auto [place, isNew] = format_numbers_.emplace(format, next);
  if (isNew) formats_.push_back(format);
  return place->second;
}

}  // namespace qor
