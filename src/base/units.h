// Conversions between the units of the program; no other file does its own. Reals become integers
// by cutting toward zero and are never rounded, unless told, because the layout of existing reports
// depends on it. The order of multiplications and divisions counts for the last bit and stays.
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

// --- To twips ------------------------------------------------------------------------------------

constexpr double realTwipsFromMillimetres(double millimetres) {
  return millimetres * kTwipsPerInch / kMillimetresPerInch;
}

constexpr std::int32_t twipsFromMillimetres(double millimetres) {
  return truncated(realTwipsFromMillimetres(millimetres));
}

constexpr std::int32_t twipsFromPoints(double points) {
  return truncated(points * kTwipsPerInch / kPointsPerInch);
}

// The extra height of lines has always been counted with 25.5 millimetres to the inch: line steps
// of existing reports depend on it.
constexpr double realTwipsFromLineSpacing(double millimetres) {
  return millimetres * kTwipsPerInch / 25.5;
}

// The labels of barcodes have always been placed with this many inches to the millimetre.
constexpr double realTwipsFromLabelMillimetres(double millimetres) {
  return millimetres * 0.0393700787 * kTwipsPerInch;
}

// Of a device or a picture; 0 where it has no resolution.
constexpr double realTwipsFromDots(double dots, double dpi) {
  return dpi > 0 ? dots * kTwipsPerInch / dpi : 0;
}

constexpr std::int32_t twipsFromDots(double dots, std::int32_t dpi) {
  return truncated(realTwipsFromDots(dots, dpi));
}

// Of a picture in its natural size.
constexpr std::int64_t twipsFromPixels(std::int64_t pixels) {
  return pixels * kTwipsPerInch / kPictureDpi;
}

// Whole twips of a dot: 0 where it has less than one, or there is no resolution.
constexpr std::int32_t wholeTwipsPerDot(std::int32_t dpi) {
  return dpi > 0 ? kTwipsPerInch / dpi : 0;
}

// The resolution of dots of so many twips.
constexpr std::int32_t dpiOfTwips(std::int32_t twipsPerDot) {
  return kTwipsPerInch / twipsPerDot;
}

// Row heights that a report sets are counted in 1/48 inch.
constexpr std::int32_t twipsFromRowUnits(double rowUnits) {
  return truncated(rowUnits * kTwipsPerInch / 48);
}

// Whole millimetres, halves away from zero: the place in the names of pictures beside a report.
constexpr double millimetresFromTwips(double twips) {
  return twips * kMillimetresPerInch / kTwipsPerInch;
}
inline std::int32_t roundedMillimetres(std::int32_t twips) {
  return static_cast<std::int32_t>(std::lround(millimetresFromTwips(twips)));
}

// --- To dots -------------------------------------------------------------------------------------

constexpr double realDotsFromTwips(double twips, double dpi) {
  return twips * dpi / kTwipsPerInch;
}

constexpr double realDotsPerTwip(double dpi) {
  return dpi / kTwipsPerInch;
}

constexpr std::int64_t pixelsFromTwips(std::int32_t twips, std::int32_t dpi) {
  return std::int64_t{twips} * dpi / kTwipsPerInch;
}

constexpr double realPixelsFromMillimetres(double millimetres, int dpi) {
  return millimetres * dpi / kMillimetresPerInch;
}

constexpr std::int32_t pixelsFromMillimetres(double millimetres, int dpi) {
  return truncated(realPixelsFromMillimetres(millimetres, dpi));
}

// Rounded: pictures tell their resolution by it.
inline int dpiFromDotsPerCentimetre(int dots) {
  return static_cast<int>(std::lround(dots * 2.54));
}

inline int dotsPerMetre(int dpi) {
  return static_cast<int>(std::lround(dpi * 1000.0 / kMillimetresPerInch));
}

// --- To points -----------------------------------------------------------------------------------

constexpr double pointsFromTwips(double twips) {
  return twips * kPointsPerInch / kTwipsPerInch;
}

constexpr double wholePointsFromTwips(std::int32_t twips) {
  const std::int64_t whole = std::int64_t{twips} * kPointsPerInch / kTwipsPerInch;
  return static_cast<double>(whole);
}

// The height of so many lines, and the width of so many characters, to the inch, cut to tenths.
constexpr double pointsOfLines(std::int32_t perInch) {
  const std::int32_t tenths = 10 * kPointsPerInch / perInch;
  return tenths / 10.0;
}
constexpr double pointsOfCharacters(double perInch) {
  return truncated(10 * kPointsPerInch / perInch) / 10.0;
}

constexpr double pointsPerDot(double dpi) {
  return kPointsPerInch / dpi;
}

// --- Hundredths of a millimetre, in which print systems count papers
// ------------------------------

inline constexpr double kHundredthsPerMillimetre = 100;
inline constexpr double kHundredthsPerInch = kHundredthsPerMillimetre * kMillimetresPerInch;
inline constexpr double kPointsPerHundredth = kPointsPerInch / kHundredthsPerInch;

// Cut, or, for what an edge must not touch, rounded up.
constexpr std::int32_t dotsFromHundredths(int hundredths, int dpi) {
  return truncated(hundredths * double(dpi) / kHundredthsPerInch);
}
inline std::int32_t dotsToClearHundredths(int hundredths, int dpi) {
  return truncated(std::ceil(hundredths * double(dpi) / kHundredthsPerInch));
}

constexpr std::int32_t millimetresFromHundredths(int hundredths) {
  return hundredths / 100;
}

// --- To millimetres ------------------------------------------------------------------------------

// Whole millimetres of a pitch that is told in 1/120 inch.
constexpr double millimetresFromPitch(double units) {
  const std::int32_t whole = truncated(units * 254 / 120) / 10;
  return whole;
}

}  // namespace qor
