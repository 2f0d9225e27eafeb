// EAN-8, EAN-13, UPC-A and UPC-E.
#include <algorithm>
#include <optional>

#include "barcode/check_digit.h"
#include "barcode/ean_tables.h"
#include "barcode/vbarcodecalc.h"

namespace qor {
namespace {

// The digits with their check digit, or nothing if they are not `length` or one more.
std::optional<std::string> withCheckDigit(std::string_view data, std::size_t length,
                                          int firstWeight) {
  if (data.size() != length && data.size() != length + 1) return std::nullopt;
  std::string digits(data.substr(0, length));
  digits += checkDigit(digits, firstWeight);
  return digits;
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> texts) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// The eight digits of the UPC-E for the twelve of a UPC-A. Behind "3" to "9" the fourth digit is
// lost: existing symbols are made like that.
std::string compressed(const std::string& upca) {
  const auto part = [&upca](std::size_t first, std::size_t last) {
    return upca.substr(first - 1, last - first + 1);
  };
  const std::string maker = part(4, 8);
  const std::string check = part(12, 12);
  const bool zeros = maker.ends_with("0000");
  if (zeros && maker[0] <= '2') return part(1, 3) + part(9, 11) + part(4, 4) + check;
  if (zeros) return part(1, 3) + part(9, 11) + "3" + check;
  if (part(6, 10) == "00000") return part(1, 5) + part(11, 11) + "4" + check;
  if (isOneOf(part(7, 11), {"00005", "00006", "00007", "00008", "00009"})) {
    return part(1, 6) + part(11, 11) + check;
  }
  throw ConversionError("Can not convert UPC-A TO UPC-E");
}

}  // namespace

std::string VBarCodeCalc::EAN13(std::string_view data) {
  clear();
  const auto digits = withCheckDigit(data, 12, 1);
  if (!digits) return {};
  const std::string_view parity = kEan13Parity[static_cast<std::size_t>(digitOf(digits->front()))];
  add("", kEanGuard);
  addLeftDigits(digits->substr(1, 6), parity);
  add("", kEanCentreGuard);
  addDigits(digits->substr(7), kEanC);
  add("", kEanGuard);
  return modules();
}

std::string VBarCodeCalc::EAN8(std::string_view data) {
  clear();
  const auto digits = withCheckDigit(data, 7, 3);
  return digits ? twoHalves(*digits) : std::string();
}

std::string VBarCodeCalc::UPCA(std::string_view data) {
  clear();
  const auto digits = withCheckDigit(data, 11, 3);
  return digits ? twoHalves(*digits) : std::string();
}

std::string VBarCodeCalc::twoHalves(const std::string& digits) {
  add("", kEanGuard);
  addDigits(digits.substr(0, digits.size() / 2), kEanA);
  add("", kEanCentreGuard);
  addDigits(digits.substr(digits.size() / 2), kEanC);
  add("", kEanGuard);
  return modules();
}

std::string VBarCodeCalc::UPCE(std::string_view data) {
  clear();
  auto digits = withCheckDigit(data, 7, 3);
  if (!digits) digits = withCheckDigit(data, 11, 3);
  if (!digits) return {};
  if (digits->size() == 12) digits = compressed(*digits);
  const auto check = static_cast<std::size_t>(digitOf(digits->back()));
  std::string parity(kUpceParity[check]);
  if (digitOf(digits->front()) != 0) {
    for (char& table : parity) table = table == '0' ? '1' : '0';
  }
  add("", kEanGuard);
  addLeftDigits(digits->substr(1, 6), parity);
  add("", "010101");
  return modules();
}

}  // namespace qor
