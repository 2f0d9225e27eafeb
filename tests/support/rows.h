// Short tables as text: rows between "|", each a first word and what stands behind the blank.
#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace qor::test {

inline std::vector<std::pair<std::string, std::string>> rowsOf(const std::string& text) {
  std::vector<std::pair<std::string, std::string>> rows;
  std::istringstream in(text);
  for (std::string row; std::getline(in, row, '|');) {
    const auto blank = row.find(' ');
    rows.emplace_back(row.substr(0, blank),
                      blank == std::string::npos ? "" : row.substr(blank + 1));
  }
  return rows;
}

inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

}  // namespace qor::test
