// Reading arguments, by the system's library.
#include <algorithm>

#include <getopt.h>

#include "platform/system/long_options.h"

namespace qor {
namespace {

// The library knows options by numbers: these are their places, behind all letters.
constexpr int kFirst = 256;

std::vector<option> longOptions(std::span<const LongOption> known) {
  std::vector<option> options;
  for (std::size_t i = 0; i < known.size(); ++i)
    options.push_back({known[i].name, known[i].takesValue ? required_argument : no_argument,
                       nullptr, kFirst + static_cast<int>(i)});
  options.push_back({});
  return options;
}

// ":" at the start has the library say nothing itself.
std::string shortOptions(std::span<const LongOption> known) {
  std::string letters = ":";
  for (const LongOption& option : known) {
    if (option.letter == 0) continue;
    letters += option.letter;
    if (option.takesValue) letters += ':';
  }
  return letters;
}

const LongOption& optionOf(int found, std::span<const LongOption> known) {
  if (found >= kFirst) return known[static_cast<std::size_t>(found - kFirst)];
  return *std::ranges::find_if(known,
                               [found](const LongOption& each) { return each.letter == found; });
}

std::string asGiven(char** argv) {
  return optopt > 0 && optopt < kFirst ? std::string("-") + static_cast<char>(optopt)
                                       : std::string(argv[optind - 1]);
}

}  // namespace

GivenArguments readArguments(int argc, char** argv, std::span<const LongOption> known) {
  const std::vector<option> options = longOptions(known);
  const std::string letters = shortOptions(known);
  GivenArguments given;
  optind = 0;  // the library starts anew
  for (;;) {
    const int found = ::getopt_long(argc, argv, letters.c_str(), options.data(), nullptr);
    if (found < 0) break;
    if (found == ':') throw UsageError(asGiven(argv) + " lacks its value");
    if (found == '?')
      throw UsageError(asGiven(argv) + " is no option, or not clear, or takes no value");
    given.options.push_back({optionOf(found, known).name, optarg == nullptr ? "" : optarg});
  }
  given.operands.assign(argv + optind, argv + argc);
  return given;
}

}  // namespace qor
