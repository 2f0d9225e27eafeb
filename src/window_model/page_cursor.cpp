// Moving over pages.
#include "window_model/page_cursor.h"

#include <algorithm>
#include <utility>

namespace qor {

void PageCursor::goTo(std::int32_t number) {
  current_ = std::clamp(number, std::min(1, total_), total_);
  startWithCurrent();
}

std::int32_t PageCursor::lastOnView() const {
  return std::min(several_ ? first_ + in_view_ - 1 : current_, total_);
}

bool PageCursor::makesCurrentFirst(std::int32_t count) {
  if (count <= 0 || current_ < first_ + count) return false;
  startWithCurrent();
  return true;
}

void PageCursor::setInView(std::int32_t count, bool exactly) {
  in_view_ = exactly ? count : std::max(in_view_, count);
}

std::int32_t PageCursor::movedFrom(std::int32_t page, PageMove move) const {
  const std::int32_t step = several_ ? in_view_ : 1;
  switch (move) {
    case PageMove::first: return 1;
    case PageMove::previous: return step >= page ? 1 : page - step;
    case PageMove::next: return page + step - 1 == total_ ? page : page + step;
    case PageMove::last: return std::max(1, total_ - step + 1);
  }
  return page;
}

std::int32_t PageCursor::target(PageMove move) const {
  const std::int32_t from = firstOnView();
  const std::int32_t target = std::min(total_, movedFrom(from, move));
  const bool forward = move == PageMove::next || move == PageMove::last;
  return forward && target == from ? current_ : target;
}

std::int32_t PageCursor::leapTarget(PageMove move) const {
  if (move == PageMove::previous) return std::max(1, current_ - kLeap);
  return current_ < total_ - kLeap ? current_ + kLeap : total_;
}

PageEdge PageCursor::takeEdge() {
  return std::exchange(edge_, PageEdge::top);
}

}  // namespace qor
