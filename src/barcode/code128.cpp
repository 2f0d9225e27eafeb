// Code 128 symbols as modules; ISO/IEC 15417.
#include <algorithm>

#include "barcode/vbarcodecalc.h"

namespace qor {
namespace {

enum Symbol { kStartA = 103, kStartB = 104, kStop = 106 };

constexpr std::string_view kClosingBar = "11";
constexpr std::string_view kBlankLabel = "           ";

// By symbol value.
constexpr std::array<std::string_view, 107> kPatterns = {
    "11011001100", "11001101100", "11001100110", "10010011000", "10010001100", "10001001100",
    "10011001000", "10011000100", "10001100100", "11001001000", "11001000100", "11000100100",
    "10110011100", "10011011100", "10011001110", "10111001100", "10011101100", "10011100110",
    "11001110010", "11001011100", "11001001110", "11011100100", "11001110100", "11101101110",
    "11101001100", "11100101100", "11100100110", "11101100100", "11100110100", "11100110010",
    "11011011000", "11011000110", "11000110110", "10100011000", "10001011000", "10001000110",
    "10110001000", "10001101000", "10001100010", "11010001000", "11000101000", "11000100010",
    "10110111000", "10110001110", "10001101110", "10111011000", "10111000110", "10001110110",
    "11101110110", "11010001110", "11000101110", "11011101000", "11011100010", "11011101110",
    "11101011000", "11101000110", "11100010110", "11101101000", "11101100010", "11100011010",
    "11101111010", "11001000010", "11110001010", "10100110000", "10100001100", "10010110000",
    "10010000110", "10000101100", "10000100110", "10110010000", "10110000100", "10011010000",
    "10011000010", "10000110100", "10000110010", "11000010010", "11001010000", "11110111010",
    "11000010100", "10001111010", "10100111100", "10010111100", "10010011110", "10111100100",
    "10011110100", "10011110010", "11110100100", "11110010100", "11110010010", "11011011110",
    "11011110110", "11110110110", "10101111000", "10100011110", "10001011110", "10111101000",
    "10111100010", "11110101000", "11110100010", "10111011110", "10111101110", "11101011110",
    "11110101110", "11010000100", "11010010000", "11010011100", "11000111010"};

bool isLowerCase(char c) {
  return c >= 'a' && c <= 'z';
}

// A symbol stays in one set: B if the text holds a small letter, else A. Digits are not paired.
Symbol startOf(std::string_view data) {
  return std::any_of(data.begin(), data.end(), isLowerCase) ? kStartB : kStartA;
}

// The value of a character in the set, or -1 where it has none. Control characters have names and
// no characters in set A, so that no text reaches them.
int valueOf(char c, Symbol start) {
  const char last = start == kStartA ? '_' : '~';
  return c >= ' ' && c <= last ? c - ' ' : -1;
}

}  // namespace

std::string VBarCodeCalc::Code128(std::string_view data) {
  clear();
  if (data.empty()) return {};
  const Symbol start = startOf(data);
  const auto addValue = [this](std::string_view label, int value) {
    values_.push_back(value);
    add(label, value < 0 ? std::string_view() : kPatterns[static_cast<std::size_t>(value)]);
  };
  addValue(kBlankLabel, start);
  long long sum = 0;
  long long place = 0;
  for (const char& c : data) {
    const int value = valueOf(c, start);
    sum += value * ++place;
    addValue({&c, 1}, value);
  }
  // Modulo the start value, which is right for set A only; labels are read back with it.
  addValue(kBlankLabel, static_cast<int>(sum % start));
  addValue(kBlankLabel, kStop);
  add("  ", kClosingBar);
  return modules();
}

}  // namespace qor
