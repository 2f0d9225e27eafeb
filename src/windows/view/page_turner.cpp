// Moving from page to page.
#include "windows/view/page_turner.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

#include "windows/alignment/alignment_lines.h"
#include "windows/view/page_number_edit.h"
#include "windows/view/view_desk.h"

namespace qor {

PageTurner::PageTurner(ViewDesk& desk, PageNumberEdit& number, AlignmentLines& lines)
    : desk_(desk), number_(number), lines_(lines) {
}

void PageTurner::cmdView_PageMoveTo(PageMove move) {
  PageCursor& cursor = desk_.cursor;
  const PageEdge edge = cursor.takeEdge();
  if (cursor.total() == 0) return;
  number_.leave();
  const int target = cursor.target(move);
  const bool isOnView = cursor.showsSeveral() && target == cursor.current();
  if (isOnView && desk_.page_control->showsPages()) {
    desk_.ui.pScroll->scrollToStart();
  } else {
    goToPage(target);
  }
  if (edge == PageEdge::end) desk_.ui.pScroll->scrollToEnd();
}

void PageTurner::leap(PageMove move) {
  if (desk_.cursor.showsSeveral()) return cmdView_PageMoveTo(move);
  if (desk_.cursor.total() == 0) return;
  number_.leave();
  goToPage(desk_.cursor.leapTarget(move));
}

void PageTurner::goToPage(int number) {
  desk_.ui.pScroll->scrollToStart();
  desk_.cursor.goTo(number);
  emit moved();
  desk_.ui.pScroll->scrollToStart();
}

void PageTurner::showPage(int number) {
  if (desk_.cursor.showsSeveral()) return markPage(number);
  if (number != desk_.cursor.current()) goToPage(number);
}

void PageTurner::markPage(int number) {
  if (!desk_.page_control->MarkPage(number)) return goToPage(number);
  desk_.cursor.mark(number);
  emit marked();
}

void PageTurner::turnPage(int direction) {
  PageCursor& cursor = desk_.cursor;
  if (direction > 0 && cursor.hasPageBehind()) {
    cmdView_PageMoveTo(PageMove::next);
  } else if (direction < 0 && cursor.hasPageBefore()) {
    cursor.wishForEnd();
    cmdView_PageMoveTo(PageMove::previous);
  }
}

// The way to another page that a walk has come to the end for, 0 while it has not. Lines move on.
int PageTurner::turnAt(int steps) {
  const PageScroll& area = *desk_.ui.pScroll;
  if (lines_.isAnyShown()) return lines_.walk(steps * area.verticalScrollBar()->singleStep());
  if (steps < 0) return area.isAtTop() ? -1 : 0;
  return area.isAtBottom() ? 1 : 0;
}

void PageTurner::scrollVertically(int steps) {
  PageCursor& cursor = desk_.cursor;
  const int turn = turnAt(steps);
  if (turn < 0 && cursor.hasPageBefore()) {
    lines_.toBottom();
    cursor.wishForEnd();
    replayKey(Qt::Key_PageUp);
  } else if (turn > 0 && cursor.hasPageBehind()) {
    lines_.toTop();
    replayKey(Qt::Key_PageDown);
  } else {
    QScrollBar* bar = desk_.ui.pScroll->verticalScrollBar();
    bar->setValue(bar->value() + steps * bar->singleStep());
  }
}

void PageTurner::scrollHorizontally(int steps) {
  QScrollBar* bar = desk_.ui.pScroll->horizontalScrollBar();
  bar->setValue(bar->value() + steps * bar->singleStep());
}

void PageTurner::scrollTo(PageSide side) {
  const bool sideways = side == PageSide::left || side == PageSide::right;
  const bool start = side == PageSide::top || side == PageSide::left;
  const PageScroll& area = *desk_.ui.pScroll;
  QScrollBar* bar = sideways ? area.horizontalScrollBar() : area.verticalScrollBar();
  bar->setValue(start ? bar->minimum() : bar->maximum());
  if (side == PageSide::bottom) lines_.toBottom();
}

// The key comes again as if it were pressed, once the events before it are done. Shift keeps it
// from the list of pages, which may have the focus.
void PageTurner::replayKey(int key) {
  QCoreApplication::postEvent(desk_.ui.pScroll->window()->windowHandle(),
                              new QKeyEvent(QEvent::KeyPress, key, Qt::ShiftModifier));
}

}  // namespace qor
