// Digits of EAN and UPC as modules; ISO/IEC 15420.
#pragma once

#include <array>
#include <string_view>

namespace qor {

using DigitTable = std::array<std::string_view, 10>;

inline constexpr std::string_view kEanGuard = "101";
inline constexpr std::string_view kEanCentreGuard = "01010";

// Left half: A with an odd number of bar modules, B with an even one. Right half: C.
inline constexpr DigitTable kEanA = {"0001101", "0011001", "0010011", "0111101", "0100011",
                                     "0110001", "0101111", "0111011", "0110111", "0001011"};
inline constexpr DigitTable kEanB = {"0100111", "0110011", "0011011", "0100001", "0011101",
                                     "0111001", "0000101", "0010001", "0001001", "0010111"};
inline constexpr DigitTable kEanC = {"1110010", "1100110", "1101100", "1000010", "1011100",
                                     "1001110", "1010000", "1000100", "1001000", "1110100"};

// Which of the six left digits come from A (0) and which from B (1): by the first digit of EAN-13,
// and by the check digit of UPC-E in number system 0. Number system 1 swaps A and B.
inline constexpr DigitTable kEan13Parity = {"000000", "001011", "001101", "001110", "010011",
                                            "011001", "011100", "010101", "010110", "011010"};
inline constexpr DigitTable kUpceParity = {"111000", "110100", "110010", "110001", "101100",
                                           "100110", "100011", "101010", "101001", "100101"};

// C is A with bars and spaces swapped, B is C read backward: one wrong module would show.
constexpr bool tablesAgree() {
  for (std::size_t digit = 0; digit < 10; ++digit) {
    for (std::size_t module = 0; module < 7; ++module) {
      if (kEanA[digit][module] == kEanC[digit][module]) return false;
      if (kEanB[digit][module] != kEanC[digit][6 - module]) return false;
    }
  }
  return true;
}
static_assert(tablesAgree());

}  // namespace qor
