// Giving out letters. A caption takes a letter from another one where that has a second choice
// (augmenting paths in a bipartite graph), so none goes without before it must.
#include "window_model/mnemonics.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <utility>

#include "platform/system/text_encoding.h"

namespace qor {
namespace {

// A letter and its place in the caption, in bytes.
struct Candidate {
  char32_t letter;
  std::size_t place;
};

// Letters that one key types count as one, and with them the Turkish i's, whose capitals are
// others.
char32_t letterOf(const std::string& character) {
  if (character == "ı" || character == "İ") return U'i';
  const std::u32string lower = codePointsFromUtf8(lowerUtf8(character));
  return lower.empty() ? 0 : lower.front();
}

std::string utf8Of(char32_t c) {
  std::string character;
  appendUtf8(character, c);
  return character;
}

bool canBeTyped(char32_t letter) {
  const bool latin = letter >= U'a' && letter <= U'z';
  const bool other = letter >= U'\xE0' && letter < U'\x530' && letter != U'\xF7';
  return latin || other;
}

// First letters of words first.
std::vector<Candidate> candidatesOf(std::string_view caption) {
  std::vector<Candidate> first;
  std::vector<Candidate> inside;
  std::size_t place = 0;
  bool startsWord = true;
  for (const char32_t c : codePointsFromUtf8(caption)) {
    const std::string character = utf8Of(c);
    const char32_t letter = letterOf(character);
    if (canBeTyped(letter)) {
      (startsWord ? first : inside).push_back({letter, place});
      startsWord = false;
    } else {
      startsWord = true;
    }
    place += character.size();
  }
  first.insert(first.end(), inside.begin(), inside.end());
  return first;
}

class Letters {
 public:
  Letters(const std::vector<std::string_view>& captions, const std::set<char32_t>& taken) {
    for (const std::string_view caption : captions) candidates_.push_back(candidatesOf(caption));
    places_.resize(captions.size(), std::string_view::npos);
    for (std::size_t i = 0; i < captions.size(); ++i) {
      std::set<char32_t> tried = taken;
      serve(i, tried);
    }
  }

  // npos for a caption without a letter.
  std::size_t placeOf(std::size_t caption) const { return places_[caption]; }

 private:
  // Takes a letter that is free, or else one whose holder can be served otherwise.
  bool serve(std::size_t caption, std::set<char32_t>& tried) {
    const std::vector<Candidate>& candidates = candidates_[caption];
    return std::any_of(candidates.begin(), candidates.end(),
                       [&](const Candidate& candidate) {
                         return !holders_.contains(candidate.letter) &&
                                tried.insert(candidate.letter).second && take(caption, candidate);
                       }) ||
           std::any_of(candidates.begin(), candidates.end(), [&](const Candidate& candidate) {
             return tried.insert(candidate.letter).second &&
                    serve(holders_.at(candidate.letter), tried) && take(caption, candidate);
           });
  }

  bool take(std::size_t caption, const Candidate& candidate) {
    holders_[candidate.letter] = caption;
    places_[caption] = candidate.place;
    return true;
  }

  std::vector<std::vector<Candidate>> candidates_;
  std::map<char32_t, std::size_t> holders_;
  std::vector<std::size_t> places_;
};

// The letters behind the marks; "&&" is no mark.
std::set<char32_t> markedLetters(const std::vector<std::string>& texts) {
  std::set<char32_t> letters;
  for (const std::string& text : texts) {
    const std::u32string characters = codePointsFromUtf8(text);
    for (std::size_t i = 0; i + 1 < characters.size(); ++i) {
      if (characters[i] != U'&') continue;
      ++i;
      letters.insert(letterOf(utf8Of(characters[i])));
    }
  }
  return letters;
}

std::string marked(std::string_view caption, std::size_t place) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (i == place || caption[i] == '&') text += '&';
    text += caption[i];
  }
  return text;
}

}  // namespace

std::vector<std::string> withMnemonics(const std::vector<std::string_view>& captions,
                                       const std::vector<std::string>& seenWithThem) {
  const Letters letters(captions, markedLetters(seenWithThem));
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < captions.size(); ++i)
    texts.push_back(marked(captions[i], letters.placeOf(i)));
  return texts;
}

}  // namespace qor
