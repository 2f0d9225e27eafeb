// The check digit of EAN, UPC and Interleaved 2 of 5.
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"

namespace qor {

// Throws ConversionError for a character that is no digit.
inline int digitOf(char c) {
  if (c < '0' || c > '9') throw ConversionError(std::string("\"") + c + "\" is not a digit");
  return c - '0';
}

// Weights 3 and 1 in turn, `firstWeight` (3 or 1) on the first digit; ISO/IEC 15420.
inline char checkDigit(std::string_view digits, int firstWeight) {
  int sum = 0;
  int weight = firstWeight;
  for (const char c : digits) {
    sum += digitOf(c) * weight;
    weight = 4 - weight;
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

}  // namespace qor
