// Letters that are the same.
#include "search/letter_folding.h"

namespace qor {
namespace {

constexpr int kTurkishDos = 857;
constexpr int kTurkishAnsi = 1254;
constexpr char32_t kDottedCapital = 0x130;
constexpr char32_t kDotless = 0x131;

}  // namespace

LetterFolding::LetterFolding(const LetterRules& rules, int codePage, bool matchCase)
    : rules_(rules),
      turkish_(codePage == kTurkishDos || codePage == kTurkishAnsi),
      match_case_(matchCase) {
  for (char32_t letter = 0; letter < known_.size(); ++letter) known_[letter] = fold(letter);
}

char32_t LetterFolding::fold(char32_t letter) const {
  if (match_case_) return letter;
  if (turkish_ && letter == kDottedCapital) return U'i';
  if (turkish_ && letter == U'I') return kDotless;
  return rules_.folded(letter);
}

}  // namespace qor
