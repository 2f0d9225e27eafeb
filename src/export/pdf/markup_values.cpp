// Texts of records read as numbers.
#include "export/pdf/markup_values.h"

#include <charconv>
#include <cmath>

#include "base/units.h"
#include "platform/canvas/color.h"

namespace qor {

std::int32_t integerOf(std::string_view value) {
  std::int64_t number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  return clamped(number);
}

double realOf(std::string_view value, double otherwise) {
  double number = otherwise;
  std::from_chars(value.data(), value.data() + value.size(), number);
  return std::isfinite(number) ? number : otherwise;
}

PdfColor colorOf(std::string_view value) {
  std::uint32_t number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  const auto color = static_cast<Color>(number);
  return {redOf(color) / 255.0, greenOf(color) / 255.0, blueOf(color) / 255.0};
}

double wholePoints(std::string_view twips) {
  return wholePointsFromTwips(integerOf(twips));
}

}  // namespace qor
