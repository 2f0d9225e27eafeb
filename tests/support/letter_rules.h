// What Unicode says of the letters that tests have.
#pragma once

#include <cctype>

#include "search/letter_folding.h"

namespace qor::test {

// Folds Latin and Cyrillic letters.
inline constexpr LetterRules kTestLetters = {
    [](char32_t c) -> char32_t {
      const bool isCapital = (c >= U'A' && c <= U'Z') || (c >= 0x410 && c <= 0x42F);
      return isCapital ? c + 0x20 : c == 0x17F ? U's' : c;
    },
    [](char32_t c) {
      return (c < 128 && std::isalnum(static_cast<int>(c)) != 0) || c == U'_' || c >= 0xC0;
    }};

}  // namespace qor::test
