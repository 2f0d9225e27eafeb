// Conversions between the units of the program. Every real result is cut toward zero, never
// rounded, because the layout of existing reports depends on it.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace qor {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr double kMillimetresPerInch = 25.4;
inline constexpr int kPointsPerInch = 72;
// Dots per inch of pictures of pages and of the sheet on a screen at 100 percent.
inline constexpr int kPictureDpi = 96;

// Cuts toward zero; a value outside the 32-bit range gives the nearest end of it, NaN gives 0.
constexpr std::int32_t truncated(double value) {
  constexpr double low = std::numeric_limits<std::int32_t>::min();
  constexpr double high = std::numeric_limits<std::int32_t>::max();
  if (value != value) return 0;
  if (value <= low) return std::numeric_limits<std::int32_t>::min();
  if (value >= high) return std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(value);
}

// Brings a 64-bit intermediate result into the 32-bit range of coordinates.
constexpr std::int32_t clamped(std::int64_t value) {
  constexpr std::int64_t low = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t high = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(value < low ? low : value > high ? high : value);
}

constexpr std::int32_t twipsFromMillimetres(double millimetres) {
  return truncated(millimetres * kTwipsPerInch / kMillimetresPerInch);
}

constexpr std::int32_t twipsFromPoints(double points) {
  return truncated(points * kTwipsPerInch / kPointsPerInch);
}

// Row heights that a report sets are counted in 1/48 inch.
constexpr std::int32_t twipsFromRowUnits(double rowUnits) {
  return truncated(rowUnits * kTwipsPerInch / 48);
}

// Whole millimetres, halves away from zero: the place in the names of pictures beside a report.
inline std::int32_t roundedMillimetres(std::int32_t twips) {
  return static_cast<std::int32_t>(std::lround(twips * kMillimetresPerInch / kTwipsPerInch));
}

constexpr std::int32_t pixelsFromMillimetres(double millimetres, int dpi) {
  return truncated(millimetres * dpi / kMillimetresPerInch);
}

}  // namespace qor
