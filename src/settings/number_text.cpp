// Real numbers as text.
#include "settings/number_text.h"

#include <algorithm>
#include <charconv>

#include "base/text.h"
#include "platform/system/locale.h"

namespace qor {
namespace {

constexpr int kSignificantDigits = 15;

// "1e+20" and "1e-05" become "1E20" and "1E-5".
std::string shortExponent(std::string_view exponent) {
  std::string result = "E";
  if (exponent[1] == '-') result += '-';
  exponent.remove_prefix(std::min(exponent.size() - 1, exponent.find_first_not_of("e+-0")));
  return result.append(exponent);
}

}  // namespace

std::string FloatToStr(double value) {
  char buffer[40];
  const auto end = std::to_chars(std::begin(buffer), std::end(buffer), value,
                                 std::chars_format::general, kSignificantDigits);
  std::string text(buffer, end.ptr);
  if (const auto exponent = text.find('e'); exponent != std::string::npos) {
    text.replace(exponent, std::string::npos,
                 shortExponent(std::string_view(text).substr(exponent)));
  }
  if (const auto point = text.find('.'); point != std::string::npos)
    text[point] = decimalSeparator();
  return text;
}

double ParseDoubleAnyLocale(std::string_view text) {
  std::string number(text);
  if (const auto mark = number.find_first_of(".,"); mark != std::string::npos) number[mark] = '.';
  std::erase_if(number, [](char c) { return c == ' ' || c == ','; });
  const std::string_view digits =
      trimmedLeft(number).starts_with('+') ? trimmedLeft(number).substr(1) : trimmedLeft(number);
  double value = 0.0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value == value ? value : 0.0;
}

}  // namespace qor
