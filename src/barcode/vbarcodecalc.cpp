// What all symbologies share.
#include "barcode/vbarcodecalc.h"

#include <numeric>

#include "barcode/alphabets.h"
#include "barcode/check_digit.h"
#include "barcode/ean_tables.h"

namespace qor {
namespace {

bool consistsOf(std::string_view data, std::string_view alphabet) {
  return data.find_first_not_of(alphabet) == std::string_view::npos;
}

}  // namespace

void VBarCodeCalc::clear() {
  values_.clear();
  labels_.clear();
  patterns_.clear();
}

void VBarCodeCalc::add(std::string_view label, std::string_view pattern) {
  labels_.emplace_back(label);
  patterns_.emplace_back(pattern);
}

void VBarCodeCalc::addDigits(std::string_view digits, const DigitTable& table) {
  for (const char& digit : digits) {
    add({&digit, 1}, table[static_cast<std::size_t>(digitOf(digit))]);
  }
}

void VBarCodeCalc::addLeftDigits(std::string_view digits, std::string_view parity) {
  for (std::size_t i = 0; i < digits.size(); ++i) {
    addDigits(digits.substr(i, 1), parity[i] == '0' ? kEanA : kEanB);
  }
}

std::string VBarCodeCalc::modules() const {
  std::size_t length = 0;
  for (const std::string& pattern : patterns_) length += pattern.size();
  std::string all;
  all.reserve(length);
  for (const std::string& pattern : patterns_) all += pattern;
  return all;
}

bool VBarCodeCalc::CheckDigits(std::string_view data) {
  return consistsOf(data, "0123456789");
}
bool VBarCodeCalc::CheckCode39(std::string_view data) {
  return consistsOf(data, kCode39Alphabet);
}
bool VBarCodeCalc::CheckCode93(std::string_view data) {
  return consistsOf(data, kCode39Alphabet);
}
bool VBarCodeCalc::CheckCodaBar(std::string_view data) {
  return consistsOf(data, "0123456789-$:/.+ABCD");
}

void VBarCodeCalc::Layout(Texts& patterns, Texts& labels) const {
  static constexpr std::size_t before = 11;
  static constexpr std::size_t behind = 7;
  const auto surround = [](const Texts& entries, char filler) {
    Texts result;
    result.reserve(entries.size() + 2);
    result.emplace_back(before, filler);
    result.insert(result.end(), entries.begin(), entries.end());
    result.emplace_back(behind, filler);
    return result;
  };
  patterns = surround(patterns_, '0');
  labels = surround(labels_, ' ');
}

}  // namespace qor
