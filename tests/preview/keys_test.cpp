// Keys, wheel and mouse in the window. Pages are A4 on the printer that makes files, higher than
// the window at 100 percent.
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include "preview/model/zoom_list.h"
#include "preview/page_image.h"
#include "preview/window.h"

namespace qor::test {
namespace {

TEST(PreviewKeys, answersEachKey) {
  struct Row {
    const char* what;
    int start;
    const char* startPlace;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int page;
    const char* scrolled;  // "top", "end", or what lies between
  };
  const Qt::KeyboardModifiers none = Qt::NoModifier;
  const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
  const std::vector<Row> rows = {
      {"next", 5, "top", Qt::Key_PageDown, none, 6, "top"},
      {"previous", 5, "top", Qt::Key_PageUp, none, 4, "top"},
      {"next at the end", 20, "end", Qt::Key_PageDown, none, 20, "top"},
      {"previous at the start", 1, "end", Qt::Key_PageUp, none, 1, "top"},
      {"eight on", 5, "top", Qt::Key_PageDown, ctrl, 13, "top"},
      {"eight on, near the end", 12, "top", Qt::Key_PageDown, ctrl, 20, "top"},
      {"eight back", 11, "top", Qt::Key_PageUp, ctrl, 3, "top"},
      {"eight back at the start", 1, "end", Qt::Key_PageUp, ctrl, 1, "top"},
      {"eight back, near the start", 8, "top", Qt::Key_PageUp, ctrl, 1, "top"},
      {"end of the page", 5, "top", Qt::Key_End, none, 5, "end"},
      {"last page", 5, "top", Qt::Key_End, ctrl, 20, "end"},
      {"first page", 5, "top", Qt::Key_Home, ctrl, 1, "top"},
      {"one step down", 5, "top", Qt::Key_Down, none, 5, "20"},
      {"eight steps down", 5, "top", Qt::Key_Down, ctrl, 5, "160"},
      {"up leads to the end of the page before", 5, "top", Qt::Key_Up, none, 4, "end"},
      {"nothing is above the first page", 1, "top", Qt::Key_Up, none, 1, "top"},
      {"F9 alone is nothing", 5, "top", Qt::Key_F9, none, 5, "top"},
      {"a disabled command does nothing", 5, "top", Qt::Key_F4, none, 5, "top"},
  };
  Window window({reportOfPages(20), Window::zoomed(kNaturalZoomEntry)});
  const int end = window.area().verticalScrollBar()->maximum();
  ASSERT_GT(end, 160);
  for (const Row& row : rows) {
    window.press(Qt::Key_Home, ctrl);
    for (int i = 1; i < row.start; ++i) window.press(Qt::Key_PageDown);
    ASSERT_EQ(window.page(), row.start);
    if (row.startPlace == std::string("end")) window.press(Qt::Key_End);
    window.press(row.key, row.modifiers);
    EXPECT_EQ(window.page(), row.page) << row.what;
    const std::string place = row.scrolled;
    EXPECT_EQ(window.scrolled(), place == "top"   ? 0
                                 : place == "end" ? end
                                                  : std::stoi(place))
        << row.what;
  }
}

TEST(PreviewKeys, walksThroughTheReportWithOneKey) {
  Window window({reportOfPages(3), Window::zoomed(kNaturalZoomEntry)});
  for (int i = 0; i < 200; ++i) window.press(Qt::Key_Down);
  EXPECT_EQ(window.page(), 3);
  const int end = window.scrolled();
  EXPECT_GT(end, 0);
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.scrolled(), end) << "nothing is behind the last page";
  window.press(Qt::Key_Home);
  EXPECT_EQ(window.scrolled(), 0);
}

// As they come where the window was busy for a while.
TEST(PreviewKeys, keepsTheOrderOfKeysThatComeAtOnce) {
  Window window({reportOfPages(3), Window::zoomed(kNaturalZoomEntry)});
  window.press(Qt::Key_End);
  for (int i = 0; i < 3; ++i) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(window.form().windowHandle(), &down);
  }
  EXPECT_EQ(window.page(), 2);
  EXPECT_EQ(window.scrolled(), 40);
}

TEST(PreviewKeys, scrollsSidewaysWhereThePageIsWider) {
  Window window({reportOfPages(1), Window::zoomed(3)});
  QScrollBar& bar = *window.area().horizontalScrollBar();
  window.press(Qt::Key_Right);
  EXPECT_EQ(bar.value(), bar.singleStep());
  window.press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(bar.value(), bar.maximum());
  window.press(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(bar.value(), bar.maximum() - 8 * bar.singleStep());
  window.press(Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(bar.value(), 0);
}

TEST(PreviewKeys, leavesTheKeysOfAMenuToIt) {
  Window window({reportOfPages(3)});
  auto& menu = window.control<QMenu>("mnuPopup");
  window.press(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_TRUE(menu.isVisible());
  window.press(Qt::Key_PageDown);
  window.press(Qt::Key_Escape);
  EXPECT_TRUE(window.form().isVisible());
  EXPECT_EQ(window.page(), 1);
  menu.close();
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(window.form().isVisible());
}

TEST(PreviewKeys, wheelTurnsPagesAtTheirEnds) {
  Window window({reportOfPages(3), Window::zoomed(kNaturalZoomEntry)});
  window.wheel(120);
  EXPECT_EQ(window.page(), 1);
  window.press(Qt::Key_End);
  window.wheel(-120);
  EXPECT_EQ(window.page(), 2);
  EXPECT_EQ(window.scrolled(), 0);
  window.wheel(120);
  EXPECT_EQ(window.page(), 1);
  EXPECT_GT(window.scrolled(), 0) << "back at the end of the page";
}

TEST(PreviewKeys, dragsThePage) {
  Window window({reportOfPages(1), Window::zoomed(3)});
  QWidget& view = window.view();
  const auto drag = [&view](QEvent::Type type, QPoint point) {
    QMouseEvent event(type, point, view.parentWidget()->parentWidget()->mapToGlobal(point),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
  };
  drag(QEvent::MouseButtonPress, {300, 300});
  drag(QEvent::MouseMove, {280, 250});
  EXPECT_EQ(window.scrolled(), 50);
  drag(QEvent::MouseButtonRelease, {280, 250});
  drag(QEvent::MouseMove, {200, 100});
  EXPECT_EQ(window.scrolled(), 50);
  EXPECT_EQ(window.area().horizontalScrollBar()->value(), 20);
}

TEST(PreviewKeys, goesToATypedPage) {
  struct Row {
    const char* typed;
    int page;
  };
  Window window({reportOfPages(20), Window::zoomed(kNaturalZoomEntry)});
  auto& edit = window.control<QLineEdit>("txtPageCurrentEdit");
  for (const Row& row :
       {Row{"7", 7}, Row{"0", 7}, Row{"", 7}, Row{"99", 20}, Row{"1x2", 12}, Row{"12345678", 20}}) {
    window.click("lblPageCurrent");
    ASSERT_TRUE(edit.isVisible());
    edit.clear();
    window.area().verticalScrollBar()->setValue(100);
    QTest::keyClicks(&edit, row.typed);
    EXPECT_LE(edit.text().size(), 6);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(window.page(), row.page) << row.typed;
    EXPECT_EQ(window.scrolled(), std::atoi(row.typed) > 0 ? 0 : 100) << row.typed;
    EXPECT_FALSE(edit.isVisible());
  }
  window.click("lblPageCurrent");
  edit.setText("6");
  window.click("cmdView_Prev");
  EXPECT_EQ(window.page(), 5) << "a move starts from what was typed";
  EXPECT_FALSE(edit.isVisible());
}

TEST(PreviewKeys, leavesThePageNumberToItsEdit) {
  Window window({reportOfPages(20), Window::zoomed(kNaturalZoomEntry)});
  auto& edit = window.control<QLineEdit>("txtPageCurrentEdit");
  window.press(Qt::Key_PageDown);
  window.click("lblPageCurrent");
  const auto type = [&](std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) window.press(key);
  };
  type({Qt::Key_1, Qt::Key_7, Qt::Key_Home, Qt::Key_Delete, Qt::Key_End, Qt::Key_9, Qt::Key_Left,
        Qt::Key_Backspace, Qt::Key_1, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up});
  EXPECT_EQ(edit.text(), "19") << "17, 7, 79, 9, 19";
  EXPECT_EQ(window.scrolled(), 0);
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(edit.isVisible());
  EXPECT_EQ(window.page(), 2) << "nothing was asked for";
  EXPECT_TRUE(window.form().isVisible());
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(window.form().isVisible());
}

TEST(PreviewKeys, walkTheListThatHasTheFocus) {
  Window window({reportOfPages(200), {{"ZoomID", kNaturalZoomEntry}, {"ListView", 1}}});
  window.control("lstPages").setFocus();
  struct Row {
    Qt::Key key;
    int least;
    int most;
  };
  for (const Row& row : {Row{Qt::Key_Down, 2, 2}, Row{Qt::Key_Down, 3, 3}, Row{Qt::Key_Up, 2, 2},
                         Row{Qt::Key_PageDown, 20, 80}, Row{Qt::Key_End, 200, 200},
                         Row{Qt::Key_PageUp, 120, 180}, Row{Qt::Key_Home, 1, 1}}) {
    window.area().verticalScrollBar()->setValue(100);
    window.press(row.key);
    EXPECT_GE(window.page(), row.least) << row.key;
    EXPECT_LE(window.page(), row.most) << row.key;
    EXPECT_EQ(window.scrolled(), 0) << "a page that is gone to shows its top";
  }
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(window.page(), 200) << "with Ctrl they are the window's";
}

// A press on the screen, as the system reports it, moves the focus before anything else.
TEST(PreviewKeys, clicksOnPagesWhileAPageNumberIsTyped) {
  Window window({reportOfPages(20), {{"ZoomID", 9}, {"MultipageView", 1}}});
  window.click("lblPageCurrent");
  window.control<QLineEdit>("txtPageCurrentEdit").setText("2");
  const auto pages = window.view().findChildren<PageImage*>();
  const auto third = std::find_if(pages.begin(), pages.end(), [](PageImage* image) {
    return image->isVisible() && image->property("tag").toInt() == 3;
  });
  ASSERT_NE(third, pages.end());
  const QPoint place = (*third)->mapTo(&window.form(), (*third)->rect().center());
  QTest::mouseClick(window.form().windowHandle(), Qt::LeftButton, {}, place);
  QCoreApplication::processEvents();
  EXPECT_FALSE(window.control("txtPageCurrentEdit").isVisible());
  EXPECT_TRUE(window.page() == 2 || window.page() == 3) << window.page();
}

}  // namespace
}  // namespace qor::test
