// Shortening file names to a width.
#include "render/path_ellipsis.h"

#include <numeric>

namespace qor {
namespace {

constexpr std::u32string_view kDots = U"...";

}  // namespace

std::u32string withPathEllipsis(std::u32string_view text, double room,
                                const std::function<double(char32_t)>& advance) {
  const auto widthOf = [&advance](std::u32string_view part) {
    return std::accumulate(part.begin(), part.end(), 0.0,
                           [&advance](double width, char32_t c) { return width + advance(c); });
  };
  double width = widthOf(text);
  if (width <= room) return std::u32string(text);
  const auto separator = text.find_last_of(U"/\\");
  const bool hasPath = separator != std::u32string_view::npos;
  std::u32string_view head = text.substr(0, hasPath ? separator : 0);
  std::u32string result = std::u32string(kDots).append(text.substr(head.size()));
  width += widthOf(kDots);
  for (; !head.empty() && width > room; head.remove_suffix(1)) width -= advance(head.back());
  for (; !result.empty() && width > room; result.pop_back()) width -= advance(result.back());
  return std::u32string(head).append(result);
}

}  // namespace qor
