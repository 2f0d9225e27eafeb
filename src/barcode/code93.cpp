// Code 93 characters as modules; AIM USS-93.
#include "barcode/alphabets.h"
#include "barcode/vbarcodecalc.h"

namespace qor {
namespace {

constexpr std::string_view kStartStop = "101011110";

// The shift characters stand behind the alphabet, under signs of their own.
constexpr std::string_view kShifts = "!#&@";

constexpr std::array<std::string_view, 47> kPatterns = {
    "100010100", "101001000", "101000100", "101000010", "100101000", "100100100", "100100010",
    "101010000", "100010010", "100001010", "110101000", "110100100", "110100010", "110010100",
    "110010010", "110001010", "101101000", "101100100", "101100010", "100110100", "100011010",
    "101011000", "101001100", "101000110", "100101100", "100010110", "110110100", "110110010",
    "110101100", "110100110", "110010110", "110011010", "101101100", "101100110", "100110110",
    "100111010", "100101110", "111010100", "111010010", "111001010", "101101110", "101110110",
    "110101110", "100100110", "111011010", "111010110", "100110010"};
static_assert(kPatterns.size() == kCode39Alphabet.size() + kShifts.size());

std::string_view patternOf(char c) {
  const std::size_t value = kCode39Alphabet.find(c);
  if (value != std::string_view::npos) return kPatterns[value];
  const std::size_t shift = kShifts.find(c);
  return shift == std::string_view::npos ? "" : kPatterns[kCode39Alphabet.size() + shift];
}

}  // namespace

// The two check symbols are left out: readers of the suite's labels are set up for it.
std::string VBarCodeCalc::Code93(std::string_view data) {
  clear();
  if (data.empty()) return {};
  add(" ", kStartStop);
  for (const char& c : data) {
    const std::string_view pattern = patternOf(c);
    if (!pattern.empty()) add({&c, 1}, pattern);
  }
  add(" ", std::string(kStartStop) + "1");
  return modules();
}

}  // namespace qor
