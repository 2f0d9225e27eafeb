// Colours of text, pens and brushes.
#pragma once

#include <cstdint>

namespace qor {

// 0x00BBGGRR.
using Color = std::uint32_t;

constexpr std::uint32_t redOf(Color color) {
  return color & 0xFFU;
}
constexpr std::uint32_t greenOf(Color color) {
  return color >> 8 & 0xFFU;
}
constexpr std::uint32_t blueOf(Color color) {
  return color >> 16 & 0xFFU;
}

// The same colour as pictures hold it.
constexpr std::uint32_t pixelOf(Color color) {
  return 0xFF000000U | redOf(color) << 16 | greenOf(color) << 8 | blueOf(color);
}

inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;

}  // namespace qor
