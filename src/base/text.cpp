// Trimming, cutting and strict numbers.
#include "base/text.h"

#include <array>
#include <charconv>

#include "base/errors.h"

namespace qor {
namespace {

// The characters of a text from the left, but for the one at a place that is left out.
class Characters {
 public:
  Characters(std::string_view text, std::size_t leftOut) : text_(text), left_out_(leftOut) {
    skip();
  }

  bool atEnd() const { return place_ >= text_.size(); }
  char current() const { return text_[place_]; }
  void next() {
    ++place_;
    skip();
  }
  bool take(char c) {
    const bool isThere = !atEnd() && current() == c;
    if (isThere) next();
    return isThere;
  }

 private:
  void skip() {
    if (place_ == left_out_) ++place_;
  }

  std::string_view text_;
  std::size_t left_out_;
  std::size_t place_ = 0;
};

bool takeHexPrefix(Characters& rest) {
  if (rest.take('$') || rest.take('x') || rest.take('X')) return true;
  Characters behindZero = rest;
  if (!behindZero.take('0') || !(behindZero.take('x') || behindZero.take('X'))) return false;
  rest = behindZero;
  return true;
}

// Of a digit in any base; 255 where it is none.
unsigned valueOf(char digit) {
  if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
  if (digit >= 'a' && digit <= 'f') return static_cast<unsigned>(digit - 'a') + 10;
  if (digit >= 'A' && digit <= 'F') return static_cast<unsigned>(digit - 'A') + 10;
  return 0xFF;
}

// A number without a sign, to the end; nothing where it has no digits or is beyond the limit.
std::optional<std::uint64_t> magnitudeOf(Characters rest, unsigned base, std::uint64_t limit) {
  if (rest.atEnd()) return std::nullopt;
  std::uint64_t value = 0;
  for (; !rest.atEnd(); rest.next()) {
    const unsigned digit = valueOf(rest.current());
    if (digit >= base) return std::nullopt;
    value = value * base + digit;
    if (value > limit) return std::nullopt;
  }
  return value;
}

}  // namespace

std::optional<std::int32_t> parseInteger(std::string_view text, std::size_t leftOut) {
  Characters rest(text, leftOut);
  while (rest.take(' ')) continue;
  const bool negative = rest.take('-');
  if (!negative) rest.take('+');
  const bool hexadecimal = takeHexPrefix(rest);
  const std::uint64_t limit = hexadecimal ? 0xFFFFFFFFU : negative ? 0x80000000U : 0x7FFFFFFFU;
  const auto magnitude = magnitudeOf(rest, hexadecimal ? 16 : 10, limit);
  if (!magnitude) return std::nullopt;
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

std::string escapedMarkup(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

std::string lowerAscii(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return result;
}

}  // namespace qor
