// Turns the text of a barcode into modules. It knows no size, colour or canvas.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

// A symbol is a list of entries: modules as a text of "1" (bar) and "0" (space), and the label that
// stands under them.
class VBarCodeCalc {
 public:
  using Texts = std::vector<std::string>;

  // Each clears the lists, fills them and returns all modules of the symbol; an empty result means
  // that there is none for this text. EAN and UPC add their check digit, or put it right where the
  // text holds one; a text that must be digits and isn't throws ConversionError.
  std::string EAN8(std::string_view data);   // 7 or 8 digits
  std::string EAN13(std::string_view data);  // 12 or 13 digits
  std::string UPCA(std::string_view data);   // 11 or 12 digits
  std::string UPCE(std::string_view data);   // 7 or 8 digits, or 11 or 12 that can be compressed
  std::string Code39(std::string_view data, bool add_check);
  std::string Code93(std::string_view data);
  std::string Code128(std::string_view data);
  std::string ITF(std::string_view data);  // 13 digits at least

  // True if every character is in the alphabet; the empty text passes.
  static bool CheckDigits(std::string_view data);
  static bool CheckCode39(std::string_view data);
  static bool CheckCodaBar(std::string_view data);
  static bool CheckCode93(std::string_view data);

  // The lists with the quiet zones around them: 11 modules before, 7 behind.
  void Layout(Texts& patterns, Texts& labels) const;

 private:
  void clear();
  void add(std::string_view label, std::string_view pattern);
  void addDigits(std::string_view digits, const std::array<std::string_view, 10>& table);
  // By the tables that the parity text names, one for each digit.
  void addLeftDigits(std::string_view digits, std::string_view parity);
  std::string twoHalves(const std::string& digits);
  std::string modules() const;

  std::vector<int> values_;  // symbol values of Code 128
  Texts labels_;
  Texts patterns_;
};

}  // namespace qor
