// Texts: short tables of rows between "|", each of two texts with a blank or other mark between
// them; texts again and again, and parts of them.
#pragma once

#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
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

inline std::vector<std::string> joined(std::vector<std::string> words,
                                       const std::vector<std::string>& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

inline std::string times(std::size_t count, std::string_view text) {
  std::string all;
  while (count-- > 0) all += text;
  return all;
}

inline std::size_t countOf(std::string_view part, std::string_view text) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

inline std::string without(std::string_view part, std::string text) {
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at))
    text.erase(at, part.size());
  return text;
}

// A settings set as a file has it, of "Section Key=value" rows.
inline std::string setWith(const std::string& name, const std::string& values) {
  std::string set = "<ReportSetsIniFile Ver=\"1.0\"/>\r\n<Set SetName=\"" + name + "\">\r\n";
  for (const auto& [section, pair] : rowsOf(values)) {
    const auto equals = pair.find('=');
    set.append("<" + section + ">\r\n<" + pair.substr(0, equals) + " = \"");
    set.append(pair.substr(equals + 1) + "\"/>\r\n<" + section + "/>\r\n");
  }
  return set + "<Set/>\r\n";
}

}  // namespace qor::test
