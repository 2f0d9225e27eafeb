// Runs of characters.
#include "window_model/letter_runs.h"

#include <algorithm>

namespace qor {
namespace {

constexpr std::u32string_view kJoining = U".,-/:'\u2019";
constexpr std::u32string_view kBars = U"|\u00A6\u2502\u2503\u2506\u2507\u250A\u250B\u2551";
constexpr std::u32string_view kRules = U"-=_+|\u00A6";
constexpr std::u32string_view kWithDigits =
    U".,-+/:%()' \u00A0\u2019\u2212$\u20AC\u00A3\u20BD\u20BA";

bool has(std::u32string_view letters, char32_t letter) {
  return letters.find(letter) != std::u32string_view::npos;
}

bool isIn(char32_t letter, char32_t first, char32_t last) {
  return first <= letter && letter <= last;
}

bool belongsToWord(std::u32string_view text, std::size_t place, const LetterRules& rules) {
  if (rules.isWordCharacter(text[place])) return true;
  return has(kJoining, text[place]) && place > 0 && place + 1 < text.size() &&
         rules.isWordCharacter(text[place - 1]) && rules.isWordCharacter(text[place + 1]);
}

// As far as that holds to both sides.
template <class Holds>
TextSpan runWhere(std::size_t size, std::size_t place, Holds holds) {
  std::size_t first = place;
  std::size_t end = place + 1;
  while (first > 0 && holds(first - 1)) --first;
  while (end < size && holds(end)) ++end;
  return {first, end - first};
}

}  // namespace

TextSpan runAt(std::u32string_view text, std::size_t place, const LetterRules& rules) {
  if (text.empty()) return {};
  place = std::min(place, text.size() - 1);
  const auto ofWord = [&](std::size_t i) { return belongsToWord(text, i, rules); };
  const auto blank = [text](std::size_t i) { return isBlank(text[i]); };
  if (ofWord(place)) return runWhere(text.size(), place, ofWord);
  if (blank(place)) return runWhere(text.size(), place, blank);
  return {place, 1};
}

bool isBar(char32_t letter) {
  return has(kBars, letter);
}

bool isRule(char32_t letter) {
  return has(kRules, letter) || isIn(letter, 0x2500, 0x257F);
}

bool isDigit(char32_t letter) {
  return isIn(letter, U'0', U'9');
}

bool isFigure(std::u32string_view text) {
  return std::ranges::any_of(text, isDigit) &&
         std::ranges::all_of(text, [](char32_t c) { return isDigit(c) || has(kWithDigits, c); });
}

}  // namespace qor
