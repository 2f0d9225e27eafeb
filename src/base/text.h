// Small operations on narrow text that have no opinion about its encoding.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// Without the blanks and control bytes at its left end, or at both ends.
inline std::string_view trimmedLeft(std::string_view text) {
  while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
  return text;
}
inline std::string_view trimmed(std::string_view text) {
  text = trimmedLeft(text);
  while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
  return text;
}

// The text before the first `mark`, or all of it.
inline std::string_view upTo(std::string_view text, char mark) {
  return text.substr(0, text.find(mark));
}

// A whole number as report and set files write it: blanks before it, a sign, decimal digits, or
// hexadecimal ones behind "$", "x" or "0x". Nothing may follow. Hexadecimal numbers may fill all
// 32 bits, decimal ones must lie in the signed range. The character at the place `leftOut` is taken
// for not being there.
std::optional<std::int32_t> parseInteger(std::string_view text,
                                         std::size_t leftOut = std::string_view::npos);

// The same; throws ConversionError where the text is no such number.
std::int32_t toInteger(std::string_view text);

// Appends the number with the fewest digits that tell it, and never with an exponent.
void appendDecimal(std::string& text, double value);

// A text as content of HTML or XML: &, < and > as entities.
std::string escapedMarkup(std::string_view text);

// Letters A to Z become a to z, all other bytes stay.
std::string lowerAscii(std::string_view text);

}  // namespace qor
