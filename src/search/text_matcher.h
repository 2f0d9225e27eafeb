// A text that is looked for, and the places of a line where it stands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "search/letter_folding.h"

namespace qor {

struct FindQuery {
  std::u32string text;
  bool matchCase = false;
  bool wholeWord = false;
  bool anyBlanks = true;  // a blank stands for any number of them; those at the ends don't count

  bool operator==(const FindQuery&) const = default;
};

// Characters of a line, from 0.
struct TextSpan {
  std::size_t first = 0;
  std::size_t count = 0;

  std::size_t end() const { return first + count; }
  bool operator==(const TextSpan&) const = default;
};

class TextMatcher {
 public:
  TextMatcher(const FindQuery& query, const LetterRules& rules, int codePage);

  // Nothing, or blanks alone where their number doesn't count: that is found nowhere.
  bool isEmpty() const { return wanted_.empty(); }

  // Calls `found` with the places in the line, left to right, none in another.
  template <class Found>
  void findIn(std::u32string_view line, Found found) {
    fold(line);
    for (TextSpan hit = next(0); hit.count > 0; hit = next(hit.end())) found(hit);
  }

  const LetterFolding& folding() const { return folding_; }

  // What is looked for, folded.
  std::u32string_view wanted() const { return wanted_; }

  // The longest piece that stands in every place as it is here, folded.
  std::u32string_view fixedPiece() const;

 private:
  void fold(std::u32string_view line);
  TextSpan next(std::size_t from) const;
  std::size_t lengthAt(std::size_t place) const;
  bool isWholeWord(TextSpan hit) const;
  bool isWordCharacter(std::size_t place) const;

  LetterFolding folding_;
  bool whole_word_;
  bool any_blanks_;
  std::u32string wanted_;  // folded
  std::u32string line_;    // the one at hand, folded
};

}  // namespace qor
