// Which letters are the same to a search.
#pragma once

#include <array>

namespace qor {

// What Unicode says of characters, told by whoever knows its tables.
struct LetterRules {
  char32_t (*folded)(char32_t);       // simple case folding
  bool (*isWordCharacter)(char32_t);  // letters, digits and what joins them
};

class LetterFolding {
 public:
  // Case is ignored or matters. In Turkish code pages (857 and 1254) i with İ and ı with I are the
  // pairs.
  LetterFolding(const LetterRules& rules, int codePage, bool matchCase);

  char32_t operator()(char32_t letter) const {
    return letter < known_.size() ? known_[letter] : fold(letter);
  }
  bool isWordCharacter(char32_t letter) const { return rules_.isWordCharacter(letter); }

 private:
  char32_t fold(char32_t letter) const;

  LetterRules rules_;
  bool turkish_;
  bool match_case_;
  std::array<char32_t, 0x530> known_{};  // what the first letters become: up to the Cyrillic ones
};

constexpr bool isBlank(char32_t letter) {
  return letter == U' ' || letter == U'\u00A0';
}

}  // namespace qor
