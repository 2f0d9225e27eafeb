// Where the commands that turn pages lead.
#pragma once

#include <algorithm>
#include <cstdint>

namespace qor {

enum class PageMove { first = 1, previous = 2, next = 3, last = 4 };

// Pages that Ctrl with Page Up and Page Down passes over.
inline constexpr std::int32_t kPageLeap = 8;

// From page `current` of `total`, with `onView` pages shown at once; what is above `total` is for
// the window to bring down to it.
constexpr std::int32_t movedPage(PageMove move, std::int32_t current, std::int32_t total,
                                 std::int32_t onView) {
  switch (move) {
    case PageMove::first: return 1;
    case PageMove::previous: return onView >= current ? 1 : current - onView;
    case PageMove::next: return current + onView - 1 == total ? current : current + onView;
    case PageMove::last: return std::max(1, total - onView + 1);
  }
  return current;
}

constexpr std::int32_t leapBack(std::int32_t current) {
  return std::max(1, current - kPageLeap);
}
constexpr std::int32_t leapOn(std::int32_t current, std::int32_t total) {
  return current < total - kPageLeap ? current + kPageLeap : total;
}

}  // namespace qor
