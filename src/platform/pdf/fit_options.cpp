// Option strings.
#include "platform/pdf/fit_options.h"

#include <array>
#include <charconv>
#include <vector>

namespace qor {
namespace {

// Words, with the signs between names and values counting as blanks.
std::vector<std::string_view> wordsOf(std::string_view text) {
  constexpr std::string_view kBetween = " ={}\t";
  std::vector<std::string_view> words;
  while (true) {
    const auto first = text.find_first_not_of(kBetween);
    if (first == std::string_view::npos) return words;
    text.remove_prefix(first);
    words.push_back(text.substr(0, text.find_first_of(kBetween)));
    text.remove_prefix(words.back().size());
  }
}

std::optional<double> numberOf(std::string_view word) {
  double value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return value;
}

struct Place {
  std::string_view word;
  double part;
};
constexpr std::array<Place, 5> kPlaces = {
    {{"left", 0}, {"bottom", 0}, {"center", 0.5}, {"right", 1}, {"top", 1}}};

std::optional<double> partOf(std::string_view word) {
  for (const Place& place : kPlaces) {
    if (place.word == word) return place.part;
  }
  return std::nullopt;
}

}  // namespace

FitOptions parseFitOptions(std::string_view text) {
  FitOptions options;
  const auto words = wordsOf(text);
  const auto word = [&words](std::size_t i) {
    return i < words.size() ? words[i] : std::string_view();
  };
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "boxsize") {
      const auto width = numberOf(word(i + 1));
      const auto height = numberOf(word(i + 2));
      if (width && height) options.box = {*width, *height};
    } else if (words[i] == "position") {
      const auto first = partOf(word(i + 1));
      const auto second = partOf(word(i + 2));
      if (first) options.horizontal = *first;
      if (first || second) options.vertical = second ? *second : *first;
    } else if (words[i] == "fitmethod") {
      if (word(i + 1) == "entire") options.method = FitMethod::entire;
      if (word(i + 1) == "meet") options.method = FitMethod::meet;
    } else if (words[i] == "dpi") {
      options.dpi = numberOf(word(i + 1));
    }
  }
  return options;
}

}  // namespace qor
