// The font record that all drawing asks fonts with, in the shape that the suite's Windows programs
// store and exchange.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace qor {

inline constexpr std::size_t kFaceNameSize = 32;

// Weights of faces, of 0 to 1000. From the second one on a text counts as bold.
inline constexpr std::int32_t kPlainWeight = 400;
inline constexpr std::int32_t kBoldWeight = 700;

struct LogFont {
  std::int32_t Height = -10;     // logical units; negative: of the character, positive: of the cell
  std::int32_t Width = 0;        // average width, logical units; 0: the natural one
  std::int32_t Escapement = 0;   // of the line, tenths of a degree, counter-clockwise
  std::int32_t Orientation = 0;  // of each character; always as Escapement
  std::int32_t Weight = kPlainWeight;  // 0 to 1000
  std::uint8_t Italic = 0;
  std::uint8_t Underline = 0;
  std::uint8_t StrikeOut = 0;
  std::uint8_t CharSet = 0;
  std::uint8_t OutPrecision = 4;
  std::uint8_t ClipPrecision = 0;
  std::uint8_t Quality = 0;
  std::uint8_t PitchAndFamily = 0;
  char FaceName[kFaceNameSize] = "Courier New";  // ends in a zero

  bool operator==(const LogFont& other) const {
    static_assert(std::has_unique_object_representations_v<LogFont>);
    return std::memcmp(this, &other, sizeof other) == 0;
  }

  std::string_view faceName() const { return FaceName; }

  // A longer name is cut to 31 bytes.
  void setFaceName(std::string_view name) {
    std::fill(std::begin(FaceName), std::end(FaceName), '\0');
    name.substr(0, kFaceNameSize - 1).copy(FaceName, kFaceNameSize - 1);
  }
};

}  // namespace qor
