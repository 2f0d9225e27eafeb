// Tells the pages that can't hold what is looked for by their bytes: nearly all pages of a report
// can't, and looking at bytes costs a fraction of reading lines.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "document/line_splitter.h"

namespace qor {

class DocumentLetters;
class TextMatcher;

class PageFilter {
 public:
  PageFilter(const TextMatcher& matcher, const DocumentLetters& letters);

  // False where no line of the page holds the text. Where the page has tags or control bytes its
  // lines must be read.
  bool mayHold(std::string_view bytes, LineEnds ends);

  // Whether a line is nothing but its letters.
  static bool isPlain(std::string_view line);

  // The letter that no byte of the code page stands for; 0 where there is none.
  char32_t missingLetter() const { return missing_; }

 private:
  std::array<char, 256> alike_{};  // the first byte that is the same to the search
  std::string piece_;
  std::string bytes_;
  char32_t missing_ = 0;
};

}  // namespace qor
