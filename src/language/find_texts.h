// The texts of finding.
#pragma once

#include <string_view>

namespace qor {

// A "%" stands for a number, or a letter.
struct FindTexts {
  std::string_view findInReport;
  std::string_view matchCase;
  std::string_view wholeWord;
  std::string_view anyBlanks;
  std::string_view hitList;
  std::string_view hits;
  std::string_view hitOf;  // between a hit's number and their count
  std::string_view firstHitsOf;
  std::string_view searching;  // behind a count
  std::string_view wentRound;  // behind a count
  std::string_view notFound;
  std::string_view letterMissing;
  std::string_view blanksAlone;
};

}  // namespace qor
