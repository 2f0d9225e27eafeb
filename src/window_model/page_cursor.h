// Which page of how many is the current one, which ones are on view, and where the commands that
// turn pages lead. Pages count from 1; 0 stands for the current page of a report without pages. The
// window tells it what there is room for and shows the page that it names.
#pragma once

#include <cstdint>

namespace qor {

enum class PageMove { first = 1, previous = 2, next = 3, last = 4 };

// The end of a page that is seen first.
enum class PageEdge { top, end };

class PageCursor {
 public:
  // Pages that Ctrl with Page Up and Page Down passes over.
  static constexpr std::int32_t kLeap = 8;

  std::int32_t current() const { return current_; }
  std::int32_t total() const { return total_; }

  // The current page stays, even one that the report has no longer: see goTo.
  void setTotal(std::int32_t total) { total_ = total; }

  // Makes a page the current one and the first on view. What the report lacks becomes the next page
  // that it has.
  void goTo(std::int32_t number);

  // Makes one of the pages on view the current one.
  void mark(std::int32_t number) { current_ = number; }

  // Several pages at once or one.
  void setSeveral(bool several) { several_ = several; }
  bool showsSeveral() const { return several_; }

  // The pages on view. Moves start from the first one, so that none is passed over.
  std::int32_t firstOnView() const { return several_ ? first_ : current_; }
  std::int32_t lastOnView() const;

  // Several pages are shown from the current one on.
  void startWithCurrent() { first_ = current_; }

  // How many pages there is room for is counted anew with the next view.
  void countAnew() { in_view_ = 1; }

  // There is room for that many. True where the current page has none, since there was more before:
  // it then comes first, and the pages are to be shown anew.
  bool makesCurrentFirst(std::int32_t count);

  // Moves pass over that many. Where not all of them are there, as at the end of the report, the
  // number that was counted before stays.
  void setInView(std::int32_t count, bool exactly);

  // The page that a move leads to. Where the last ones are on view the current one stays.
  std::int32_t target(PageMove move) const;
  bool leads(PageMove move) const { return total_ > 0 && target(move) != current_; }

  // The page that a leap back or on leads to.
  std::int32_t leapTarget(PageMove move) const;

  // A walk line by line goes on with the page before or behind those on view.
  bool hasPageBefore() const { return firstOnView() > 1; }
  bool hasPageBehind() const { return current_ < total_; }

  // What the next move shows first: the top of its page, but for one move after this wish.
  void wishForEnd() { edge_ = PageEdge::end; }
  PageEdge takeEdge();

 private:
  std::int32_t movedFrom(std::int32_t page, PageMove move) const;

  std::int32_t current_ = 1;
  std::int32_t total_ = 0;
  std::int32_t first_ = 1;    // of several on view
  std::int32_t in_view_ = 1;  // as many as there was room for
  bool several_ = false;
  PageEdge edge_ = PageEdge::top;
};

}  // namespace qor
