// Trimming, cutting and strict numbers.
#include "base/text.h"

#include <array>
#include <charconv>

#include "base/errors.h"

namespace qor {
namespace {

bool takePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

bool takeHexPrefix(std::string_view& digits) {
  return takePrefix(digits, "0x") || takePrefix(digits, "0X") || takePrefix(digits, "$") ||
         takePrefix(digits, "x") || takePrefix(digits, "X");
}

std::optional<std::uint64_t> parseDigits(std::string_view digits, int base) {
  std::uint64_t value = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value, base);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

}  // namespace

std::optional<std::int32_t> parseInteger(std::string_view text) {
  const auto start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return std::nullopt;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);

  const bool hexadecimal = takeHexPrefix(text);
  const auto magnitude = parseDigits(text, hexadecimal ? 16 : 10);
  const std::uint64_t limit = hexadecimal ? 0xFFFFFFFFU : negative ? 0x80000000U : 0x7FFFFFFFU;
  if (!magnitude || *magnitude > limit) return std::nullopt;
  const auto bits = static_cast<std::uint32_t>(*magnitude);
  return static_cast<std::int32_t>(negative ? 0U - bits : bits);
}

std::int32_t toInteger(std::string_view text) {
  if (const auto value = parseInteger(text)) return *value;
  throw ConversionError("\"" + std::string(text) + "\" is not a whole number");
}

void appendDecimal(std::string& text, double value) {
  // The largest numbers have 309 digits before the point, the smallest about 1,080 behind it.
  std::array<char, 1100> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed)
          .ptr;
  text.append(digits.data(), end);
}

std::string lowerAscii(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return result;
}

}  // namespace qor
