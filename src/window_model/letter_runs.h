// What characters of a report's text are, and the runs of them that are taken as one.
#pragma once

#include <string_view>

#include "search/text_matcher.h"

namespace qor {

// The word, number or date around a character, the run of blanks, or the sign itself; behind the
// last character that before it. Signs within a word or a number belong to it, as in 1,234.50.
TextSpan runAt(std::u32string_view text, std::size_t place, const LetterRules& rules);

// What stands upright between columns; and what rules are made of.
bool isBar(char32_t letter);
bool isRule(char32_t letter);

bool isDigit(char32_t letter);

// A number as people write it, or a date: digits and the signs that stand with them.
bool isFigure(std::u32string_view text);

}  // namespace qor
