// Looking for texts.
#include "search/text_matcher.h"

#include <algorithm>
#include <iterator>

namespace qor {
namespace {

// Blanks as one, and none at the ends.
std::u32string withSingleBlanks(std::u32string_view text) {
  std::u32string result;
  for (const char32_t c : text) {
    if (!isBlank(c)) {
      result += c;
    } else if (!result.empty() && !isBlank(result.back())) {
      result += U' ';
    }
  }
  if (!result.empty() && isBlank(result.back())) result.pop_back();
  return result;
}

}  // namespace

TextMatcher::TextMatcher(const FindQuery& query, const LetterRules& rules, int codePage)
    : folding_(rules, codePage, query.matchCase),
      whole_word_(query.wholeWord),
      any_blanks_(query.anyBlanks),
      wanted_(query.anyBlanks ? withSingleBlanks(query.text) : query.text) {
  std::transform(wanted_.begin(), wanted_.end(), wanted_.begin(), folding_);
}

void TextMatcher::fold(std::u32string_view line) {
  line_.clear();
  std::transform(line.begin(), line.end(), std::back_inserter(line_), folding_);
}

TextSpan TextMatcher::next(std::size_t from) const {
  if (isEmpty()) return {};
  const std::u32string_view fixed =
      std::u32string_view(wanted_).substr(0, any_blanks_ ? wanted_.find(U' ') : wanted_.size());
  for (std::size_t place = line_.find(fixed, from); place != std::u32string::npos;
       place = line_.find(fixed, place + 1)) {
    const TextSpan hit = {place, lengthAt(place)};
    if (hit.count > 0 && (!whole_word_ || isWholeWord(hit))) return hit;
  }
  return {};
}

// How long the text is that stands at the place; 0 where it doesn't.
std::size_t TextMatcher::lengthAt(std::size_t place) const {
  std::size_t end = place;
  for (const char32_t c : wanted_) {
    const bool run = any_blanks_ && c == U' ';
    if (end == line_.size() || (run ? !isBlank(line_[end]) : line_[end] != c)) return 0;
    ++end;
    while (run && end < line_.size() && isBlank(line_[end])) ++end;
  }
  return end - place;
}

bool TextMatcher::isWordCharacter(std::size_t place) const {
  return place < line_.size() && folding_.isWordCharacter(line_[place]);
}

// No word goes on across an end of the hit.
bool TextMatcher::isWholeWord(TextSpan hit) const {
  const bool before = hit.first > 0 && isWordCharacter(hit.first - 1) && isWordCharacter(hit.first);
  return !before && !(isWordCharacter(hit.end() - 1) && isWordCharacter(hit.end()));
}

std::u32string_view TextMatcher::fixedPiece() const {
  std::u32string_view rest = wanted_;
  if (!any_blanks_) return rest;
  std::u32string_view longest;
  while (!rest.empty()) {
    const std::u32string_view piece = rest.substr(0, rest.find(U' '));
    if (piece.size() > longest.size()) longest = piece;
    rest.remove_prefix(std::min(rest.size(), piece.size() + 1));
  }
  return longest;
}

}  // namespace qor
