// Tables of colours.
#include "export/sheet/sheet_colours.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qor {
namespace {

constexpr std::int32_t kRed = 10;
constexpr std::int32_t kGrey = 22;
constexpr std::int32_t kPlum = 61;

// 0x00BBGGRR, and the entry.
constexpr std::pair<Color, std::int32_t> kEntries[] = {
    {0x000000, 8},  {0x0000FF, kRed}, {0xFF0000, 12},    {0x00FFFF, 13},
    {0x008000, 17}, {0xFF00FF, 14},   {0x808080, kGrey}, {0xFFFF00, 49},
    {0x008080, 59}, {0x800080, 20},   {0xC0C0C0, 23},    {0x808000, 21},
    {0xFFFFFF, 9},  {0x800000, 18},   {0x000080, kPlum}, {0x00FF00, 50}};

}  // namespace

std::optional<std::int32_t> paletteEntryOf(Color colour) {
  const auto* const found =
      std::find_if(std::begin(kEntries), std::end(kEntries),
                   [colour](const auto& entry) { return entry.first == colour; });
  if (found == std::end(kEntries)) return std::nullopt;
  return found->second;
}

// Red text is black.
std::int32_t textColourOf(std::int32_t entry) {
  return entry == kRed ? kFirstColour : entry;
}

DecimalLook decimalLookOf(int decimals, std::int32_t entry) {
  const auto withDecimals = [](int count) {
    return static_cast<NumberFormat>(static_cast<int>(NumberFormat::whole) + count);
  };
  if (entry != kPlum || decimals > 3) return {withDecimals(decimals), entry};
  if (decimals == 3) return {withDecimals(3), kGrey};
  return {withDecimals(decimals + 1), kPlum};
}

}  // namespace qor
