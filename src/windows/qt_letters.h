// Unicode's tables, for searches and words.
#pragma once

#include <QChar>

#include "search/letter_folding.h"

namespace qor {

inline constexpr LetterRules kQtLetters = {
    [](char32_t letter) -> char32_t { return QChar::toCaseFolded(letter); },
    [](char32_t letter) {
      return QChar::isLetterOrNumber(letter) || QChar::isMark(letter) || letter == U'_';
    }};

}  // namespace qor
