// Shortening file names to a width.
#include "render/path_ellipsis.h"

namespace qor {

std::u32string withPathEllipsis(std::u32string_view text, double room,
                                const std::function<double(std::u32string_view)>& width) {
  if (width(text) <= room) return std::u32string(text);
  const auto separator = text.find_last_of(U"/\\");
  std::u32string_view head;
  std::u32string_view tail = text;
  if (separator != std::u32string_view::npos) {
    head = text.substr(0, separator);
    tail = text.substr(separator);
  }
  const auto joined = [&tail](std::u32string_view start) {
    return std::u32string(start).append(U"...").append(tail);
  };
  while (!head.empty() && width(joined(head)) > room) head.remove_suffix(1);
  std::u32string result = joined(head);
  while (!result.empty() && width(result) > room) result.pop_back();
  return result;
}

}  // namespace qor
