// Interleaved 2 of 5; ISO/IEC 16390.
#include "barcode/check_digit.h"
#include "barcode/vbarcodecalc.h"

namespace qor {
namespace {

constexpr std::size_t kLeastDigits = 13;
constexpr std::string_view kStart = "1010";
constexpr std::string_view kStop = "1101";

// Narrow and wide elements of each digit.
constexpr std::array<std::string_view, 10> kElements = {
    "NNWWN", "WNNNW", "NWNNW", "WWNNN", "NNWNW", "WNWNN", "NWWNN", "NNNWW", "WNNWN", "NWNWN"};

std::string_view elementsOf(char digit) {
  return kElements[static_cast<std::size_t>(digitOf(digit))];
}

// Digits go in pairs: the first one's elements are bars, the second one's the spaces between them.
// Of the ten pieces so made, the first five stand for the first digit.
class WovenPair {
 public:
  WovenPair(char bars, char spaces) {
    const std::string_view first = elementsOf(bars);
    const std::string_view second = elementsOf(spaces);
    for (std::size_t i = 0; i < 5; ++i) {
      add('1', first[i]);
      if (i == 2) half_ = length_;
      add('0', second[i]);
    }
  }

  std::string_view firstHalf() const { return {modules_.data(), half_}; }
  std::string_view secondHalf() const { return {modules_.data() + half_, length_ - half_}; }

 private:
  void add(char module, char element) {
    modules_[length_++] = module;
    if (element == 'W') modules_[length_++] = module;
  }

  std::array<char, 20> modules_;
  std::size_t length_ = 0;
  std::size_t half_ = 0;
};

}  // namespace

std::string VBarCodeCalc::ITF(std::string_view data) {
  clear();
  if (data.size() < kLeastDigits) return {};
  std::string digits(data.substr(0, data.size() - (data.size() % 2 == 0 ? 1 : 0)));
  digits += checkDigit(digits, 3);
  add("", kStart);
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const WovenPair pair(digits[i], digits[i + 1]);
    add({&digits[i], 1}, pair.firstHalf());
    add({&digits[i + 1], 1}, pair.secondHalf());
  }
  add("", kStop);
  return modules();
}

}  // namespace qor
