// Short tables as text: rows between "|", each a first word and what stands behind the blank.
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

inline std::vector<std::pair<std::string, std::string>> rowsOf(const std::string& text) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (const std::string& row : linesOf(text, '|')) {
    const auto blank = row.find(' ');
    const bool alone = blank == std::string::npos;
    rows.emplace_back(row.substr(0, blank), alone ? "" : row.substr(blank + 1));
  }
  return rows;
}

inline std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

}  // namespace qor::test
