// Keys, wheel and mouse in the window. Pages are A4 on the printer that makes files, higher than
// the window at 100 percent.
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include "windows/view/window.h"

namespace qor::test {
namespace {

constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier;
constexpr Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;
constexpr int kEnd = -1;  // of the page, in the place of pixels

// A page and a place on it, and those that a key leads to.
struct Way {
  int fromPage, from, page, place;
};

// With Ctrl eight pages or steps on, where there are so many. A walk up or down goes on with the
// page before or behind. F9 without Shift and F4, whose command is off, are nothing.
TEST(PreviewKeys, answersEachKey) {
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, std::vector<Way>> rows[] = {
      {Qt::Key_PageDown, kNone, {{5, 0, 6, 0}, {20, kEnd, 20, 0}}},
      {Qt::Key_PageUp, kNone, {{5, 0, 4, 0}, {1, kEnd, 1, 0}}},
      {Qt::Key_PageDown, kCtrl, {{5, 0, 13, 0}, {13, 0, 20, 0}}},
      {Qt::Key_PageUp, kCtrl, {{11, 0, 3, 0}, {8, 0, 1, 0}, {1, kEnd, 1, 0}}},
      {Qt::Key_End, kNone, {{5, 0, 5, kEnd}}},
      {Qt::Key_Home, kNone, {{5, kEnd, 5, 0}}},
      {Qt::Key_End, kCtrl, {{5, 0, 20, kEnd}}},
      {Qt::Key_Home, kCtrl, {{5, kEnd, 1, 0}}},
      {Qt::Key_Down, kNone, {{5, 0, 5, 20}, {5, kEnd, 6, 0}, {20, kEnd, 20, kEnd}}},
      {Qt::Key_Down, kCtrl, {{5, 0, 5, 160}}},
      {Qt::Key_Up, kNone, {{5, 0, 4, kEnd}, {1, 0, 1, 0}}},
      {Qt::Key_F9, kNone, {{5, 0, 5, 0}}},
      {Qt::Key_F4, kNone, {{5, 0, 5, 0}}}};
  Window window({reportOfPages(20), Window::zoomed(6)});
  const int end = window.area().verticalScrollBar()->maximum();
  ASSERT_GT(end, 160);
  for (const auto& [key, modifiers, ways] : rows) {
    for (const auto& [fromPage, from, page, place] : ways) {
      SCOPED_TRACE(testing::Message() << "key " << key << " on page " << fromPage);
      window.press(Qt::Key_Home, kCtrl);
      for (int i = 1; i < fromPage; ++i) window.press(Qt::Key_PageDown);
      if (from == kEnd) window.press(Qt::Key_End);
      EXPECT_EQ(window.press(key, modifiers), page);
      EXPECT_EQ(window.scrolled(), place == kEnd ? end : place);
    }
  }
}

TEST(PreviewKeys, movesAPageThatIsWiderToo) {
  Window window({reportOfPages(1), Window::zoomed(3)});
  QScrollBar& bar = *window.area().horizontalScrollBar();
  const int step = bar.singleStep();
  const int end = bar.maximum();
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> rows[] = {
      {Qt::Key_Right, kNone, step},
      {Qt::Key_End, Qt::ShiftModifier, end},
      {Qt::Key_Left, kCtrl, end - 8 * step},
      {Qt::Key_Home, Qt::ShiftModifier, 0}};
  for (const auto& [key, modifiers, place] : rows) {
    window.press(key, modifiers);
    EXPECT_EQ(bar.value(), place) << key;
  }
  const auto drag = [&window](QEvent::Type type, QPoint point) {
    QMouseEvent event(type, point, window.area().mapToGlobal(point), Qt::LeftButton, Qt::LeftButton,
                      kNone);
    QCoreApplication::sendEvent(&window.pageControl(), &event);
  };
  drag(QEvent::MouseButtonPress, {300, 300});
  for (const QPoint to : {QPoint(290, 275), QPoint(280, 250)}) drag(QEvent::MouseMove, to);
  drag(QEvent::MouseButtonRelease, {280, 250});
  drag(QEvent::MouseMove, {200, 100});
  EXPECT_EQ(window.scrolled(), 50);
  EXPECT_EQ(bar.value(), 20);
}

TEST(PreviewKeys, leavesTheKeysOfAMenuToIt) {
  Window window({reportOfPages(3)});
  auto& menu = window.control<QMenu>("mnuPopup");
  window.press(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_TRUE(menu.isVisible());
  for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Escape}) EXPECT_EQ(window.press(key), 1);
  EXPECT_TRUE(window.form().isVisible());
  menu.close();
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(window.form().isVisible());
}

TEST(PreviewKeys, turnPagesAtTheirEnds) {
  Window window({reportOfPages(3), Window::zoomed(6)});
  EXPECT_EQ(window.wheel(120), 1);
  window.press(Qt::Key_End);
  const int end = window.scrolled();
  EXPECT_EQ(window.wheel(-120), 2);
  EXPECT_EQ(window.scrolled(), 0);
  EXPECT_EQ(window.wheel(120), 1);
  EXPECT_EQ(window.scrolled(), end);
  // Keys that come at once, as where the window was busy for a while, keep their order.
  for (int i = 0; i < 3; ++i) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, kNone);
    QCoreApplication::sendEvent(window.form().windowHandle(), &down);
  }
  EXPECT_EQ(window.page(), 2);
  EXPECT_EQ(window.scrolled(), 40);
}

TEST(PreviewKeys, goesToATypedPage) {
  Window window({reportOfPages(20), Window::zoomed(6)});
  auto& edit = window.control<QLineEdit>("txtPageCurrentEdit");
  const std::tuple<const char*, int, int> rows[] = {
      {"7", 7, 0}, {"0", 7, 100}, {"", 7, 100}, {"99", 20, 0}, {"1x2", 12, 0}, {"12345678", 20, 0}};
  for (const auto& [typed, page, scrolled] : rows) {
    window.click("lblPageCurrent");
    ASSERT_TRUE(edit.isVisible());
    edit.clear();
    window.area().verticalScrollBar()->setValue(100);
    QTest::keyClicks(&edit, typed);
    EXPECT_LE(edit.text().size(), 6);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(window.page(), page) << typed;
    EXPECT_EQ(window.scrolled(), scrolled) << typed;
    EXPECT_FALSE(edit.isVisible());
  }
  window.click("lblPageCurrent");
  edit.setText("3");
  EXPECT_EQ(window.click("cmdView_Prev"), 2) << "a move starts from what was typed";
  EXPECT_FALSE(edit.isVisible());
  // While it is typed, the edit has its own keys: 17, 7, 79, 9, 19.
  window.click("lblPageCurrent");
  for (const Qt::Key key :
       {Qt::Key_1, Qt::Key_7, Qt::Key_Home, Qt::Key_Delete, Qt::Key_End, Qt::Key_9, Qt::Key_Left,
        Qt::Key_Backspace, Qt::Key_1, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up})
    window.press(key);
  EXPECT_EQ(edit.text(), "19");
  EXPECT_EQ(window.scrolled(), 0);
  EXPECT_EQ(window.press(Qt::Key_Escape), 2) << "nothing was asked for";
  EXPECT_FALSE(edit.isVisible());
  EXPECT_TRUE(window.form().isVisible());
}

}  // namespace
}  // namespace qor::test
