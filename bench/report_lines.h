// The pages and lines of the reports that make_report writes, for the programs that draw them.
#pragma once

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

// The lines stand where the viewer puts them: A4, 10 points of Courier New's outline, no margins.
inline constexpr double kPointsPerMillimetre = 72 / 25.4;
inline constexpr double kPageWidth = 210 * kPointsPerMillimetre;  // points
inline constexpr double kPageHeight = 297 * kPointsPerMillimetre;
inline constexpr double kLineStep = 11.35;
inline constexpr double kAscent = 8.35;
inline constexpr double kFontSize = 10;
inline constexpr const char* kFontFamily = "Liberation Mono";

inline std::string readAll(const char* path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

// Calls `line` with each line and the place of its baseline, and `endPage` behind each page.
template <class Line, class EndPage>
void forEachLine(std::string_view report, Line line, EndPage endPage) {
  while (!report.empty()) {
    std::string_view page = report.substr(0, report.find('\f'));
    report.remove_prefix(std::min(report.size(), page.size() + 3));
    for (double y = kAscent; !page.empty(); y += kLineStep) {
      const std::string_view text = page.substr(0, page.find("\r\n"));
      page.remove_prefix(std::min(page.size(), text.size() + 2));
      line(text, y);
    }
    endPage();
  }
}
