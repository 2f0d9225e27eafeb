// Short tables as text: rows between "|", each of two texts with a blank or other mark between
// them.
#pragma once

#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace qor::test {

inline std::vector<std::string> linesOf(const std::string& text, char end = '\n') {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line, end);) lines.push_back(line);
  return lines;
}

inline std::vector<std::pair<std::string, std::string>> rowsOf(const std::string& text,
                                                               const std::string& mark = " ") {
  std::vector<std::pair<std::string, std::string>> rows;
  for (const std::string& row : linesOf(text, '|')) {
    const auto place = row.find(mark);
    const bool alone = place == std::string::npos;
    rows.emplace_back(row.substr(0, place), alone ? "" : row.substr(place + mark.size()));
  }
  return rows;
}

inline std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

}  // namespace qor::test
