// The current page and where moves lead from it.
#include "window_model/page_cursor.h"

#include "support/test.h"

namespace qor::test {
namespace {

using Number = std::int32_t;

// The cursor on a page of so many, with as many on view.
PageCursor at(Number page, Number total, Number inView = 0) {
  PageCursor cursor;
  cursor.setTotal(total);
  cursor.goTo(page);
  cursor.setSeveral(inView > 0);
  cursor.setInView(inView, true);
  return cursor;
}

// Where the four moves lead; those in brackets lead nowhere and are off. Then the leaps.
std::string moves(const PageCursor& cursor) {
  std::string text;
  for (const auto move : {PageMove::first, PageMove::previous, PageMove::next, PageMove::last}) {
    const std::string to = std::to_string(cursor.target(move));
    text += cursor.leads(move) ? to + " " : "(" + to + ") ";
  }
  return text + std::to_string(cursor.leapTarget(PageMove::previous)) + " " +
         std::to_string(cursor.leapTarget(PageMove::next));
}

TEST(PageCursor, movesStopAtTheEnds) {
  // From a page of so many, with so many on view, one where it is 0.
  const std::tuple<Number, Number, Number, const char*> rows[] = {
      {1, 10, 0, "(1) (1) 2 10 1 9"},    {7, 10, 0, "1 6 8 10 1 10"},
      {10, 10, 0, "1 9 (10) (10) 2 10"}, {1, 1, 0, "(1) (1) (1) (1) 1 1"},
      {12, 20, 0, "1 11 13 20 4 20"},    {8, 20, 8, "1 1 16 13 1 16"},
      {10, 20, 8, "1 2 18 13 2 18"},     {1, 20, 8, "(1) (1) 9 13 1 9"},
      {13, 20, 8, "1 5 (13) (13) 5 20"}, {15, 20, 8, "1 7 20 13 7 20"},
      {1, 3, 8, "(1) (1) 3 (1) 1 3"},    {1, 0, 0, "(0) (0) (0) (0) 1 0"}};
  for (const auto& [page, total, inView, expected] : rows)
    EXPECT_EQ(moves(at(page, total, inView)), expected) << page << " of " << total;
}

TEST(PageCursor, movesStartFromTheFirstOnView) {
  PageCursor cursor = at(9, 40, 8);
  cursor.mark(12);
  EXPECT_EQ(moves(cursor), "1 1 17 33 4 20");
  EXPECT_EQ(cursor.lastOnView(), 16);
  cursor.setSeveral(false);
  EXPECT_EQ(moves(cursor), "1 11 13 40 4 20");
  EXPECT_EQ(cursor.lastOnView(), 12);
  cursor.setSeveral(true);
  cursor.startWithCurrent();
  EXPECT_EQ(moves(cursor), "1 4 20 33 4 20");
  cursor.goTo(33);
  cursor.mark(38);
  EXPECT_EQ(moves(cursor), "1 25 (38) (38) 30 40") << "the last ones are on view";
  EXPECT_EQ(cursor.lastOnView(), 40);
}

TEST(PageCursor, keepsTheCurrentPageOnView) {
  PageCursor cursor = at(9, 40, 8);
  cursor.mark(14);
  EXPECT_FALSE(cursor.makesCurrentFirst(6));
  EXPECT_FALSE(cursor.makesCurrentFirst(-1)) << "nothing is shown";
  EXPECT_EQ(cursor.firstOnView(), 9);
  EXPECT_TRUE(cursor.makesCurrentFirst(5));
  EXPECT_EQ(cursor.firstOnView(), 14);
  // At the end of the report there are fewer than there is room for.
  cursor.setInView(3, false);
  EXPECT_EQ(cursor.lastOnView(), 21);
  cursor.countAnew();
  cursor.setInView(3, false);
  EXPECT_EQ(cursor.lastOnView(), 16);
}

TEST(PageCursor, comesBackIntoAReportThatChanged) {
  PageCursor cursor;
  // The report's pages by and by, and where a page that was gone to is then found.
  const std::tuple<Number, Number, Number> rows[] = {
      {0, 1, 0}, {4, 0, 1}, {4, 9, 4}, {2, 4, 2}, {0, 2, 0}};
  for (const auto& [total, asked, found] : rows) {
    cursor.setTotal(total);
    cursor.goTo(asked);
    EXPECT_EQ(cursor.current(), found) << total;
    EXPECT_EQ(cursor.hasPageBehind(), found < total);
  }
}

}  // namespace
}  // namespace qor::test
