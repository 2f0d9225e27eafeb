// The keys of the window.
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QWindow>

#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "ui_tfrm_view.h"
#include "window_model/preview_texts.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"

namespace qor {
namespace {

constexpr const char* kCalculator = "QorUtlCalc";
constexpr int kLargeStep = 8;  // steps of a bar with Ctrl

}  // namespace

// True if the key was one of the window's: nobody else gets it then.
bool TfrmView::FormKeyDown(const QKeyEvent& event) {
  if (belongsToFocus(event)) return false;
  if (event.key() == Qt::Key_Escape && ui_->txtPageCurrentEdit->isVisible()) {
    cancelPageEdit();
    return true;
  }
  return commandKey(event) || zoomKey(event) || movementKey(event);
}

// An edit moves in what is typed, the list of pages over its lines.
bool TfrmView::belongsToFocus(const QKeyEvent& event) const {
  const bool inEdit = ui_->txtPageCurrentEdit->hasFocus() || ui_->txtZoom->hasFocus();
  const bool inList =
      ui_->lstPages->hasFocus() && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: return inEdit;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End: return inEdit || inList;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: return inList;
    default: return false;
  }
}

bool TfrmView::commandKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Escape: close(); return true;
    case Qt::Key_F4: cmdSettings_Click(); return true;
    case Qt::Key_F5: cmdView_MailClick(); return true;
    case Qt::Key_F6: cmdView_ConvertClick(); return true;
    case Qt::Key_F9:
      if (!event.modifiers().testFlag(Qt::ShiftModifier)) return false;
      startCalculator();
      return true;
    case Qt::Key_F10:
      if (!event.modifiers().testFlag(Qt::ShiftModifier)) return false;
      showPopup(ui_->pScroll->rect().center());
      return true;
    case Qt::Key_F11: mnuFullScreenClick(); return true;
    default: return false;
  }
}

bool TfrmView::zoomKey(const QKeyEvent& event) {
  if (!event.modifiers().testFlag(Qt::ControlModifier)) {
    switch (event.key()) {
      case Qt::Key_Plus: zoomInList(1); return true;
      case Qt::Key_Minus: zoomInList(-1); return true;
      default: return false;
    }
  }
  switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:  // the plus of many keyboards, without Shift
      cmdView_ZoomInClick();
      return true;
    case Qt::Key_Minus: cmdView_ZoomOutClick(); return true;
    case Qt::Key_0: mnuActualSizeClick(); return true;
    case Qt::Key_1: mnuFitWidthClick(); return true;
    case Qt::Key_2: mnuFitPageClick(); return true;
    default: return false;
  }
}

bool TfrmView::movementKey(const QKeyEvent& event) {
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const int step = ctrl ? kLargeStep : 1;
  switch (event.key()) {
    case Qt::Key_PageUp: pageKey(PageMove::previous, ctrl); return true;
    case Qt::Key_PageDown: pageKey(PageMove::next, ctrl); return true;
    case Qt::Key_Home: homeKey(event.modifiers()); return true;
    case Qt::Key_End: endKey(event.modifiers()); return true;
    case Qt::Key_Left: scrollHorizontally(-step); return true;
    case Qt::Key_Right: scrollHorizontally(step); return true;
    case Qt::Key_Up: scrollVertically(-step); return true;
    case Qt::Key_Down: scrollVertically(step); return true;
    default: return false;
  }
}

void TfrmView::pageKey(PageMove move, bool leap) {
  if (!leap || state_.showsSeveral()) {
    cmdView_PageMoveTo(move);
  } else if (cursor_.total() > 0) {
    leavePageEdit();
    goToPage(cursor_.leapTarget(move));
  }
}

// The bar that Home and End move.
QScrollBar* TfrmView::barOf(Qt::KeyboardModifiers modifiers) const {
  const bool sideways =
      modifiers.testFlag(Qt::ShiftModifier) && !modifiers.testFlag(Qt::ControlModifier);
  return sideways ? ui_->pScroll->horizontalScrollBar() : ui_->pScroll->verticalScrollBar();
}

void TfrmView::homeKey(Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ControlModifier)) cmdView_PageMoveTo(PageMove::first);
  QScrollBar* bar = barOf(modifiers);
  bar->setValue(bar->minimum());
}

void TfrmView::endKey(Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ControlModifier)) cmdView_PageMoveTo(PageMove::last);
  QScrollBar* bar = barOf(modifiers);
  bar->setValue(bar->maximum());
}

void TfrmView::scrollHorizontally(int steps) {
  QScrollBar* bar = ui_->pScroll->horizontalScrollBar();
  bar->setValue(bar->value() + steps * bar->singleStep());
}

// At an end of the page the walk goes on with the page before or behind it.
void TfrmView::scrollVertically(int steps) {
  QScrollBar* bar = ui_->pScroll->verticalScrollBar();
  if (steps < 0 && ui_->pScroll->isAtTop()) {
    if (!cursor_.hasPageBefore()) return;
    cursor_.wishForEnd();
    replayKey(Qt::Key_PageUp);
  } else if (steps > 0 && ui_->pScroll->isAtBottom()) {
    if (cursor_.hasPageBehind()) replayKey(Qt::Key_PageDown);
  } else {
    bar->setValue(bar->value() + steps * bar->singleStep());
  }
}

// The key comes again as if it were pressed, once the events before it are done. Shift keeps it
// from the list of pages, which may have the focus.
void TfrmView::replayKey(int key) {
  QCoreApplication::postEvent(windowHandle(),
                              new QKeyEvent(QEvent::KeyPress, key, Qt::ShiftModifier));
}

void TfrmView::startCalculator() {
  if (!startCompanion(kCalculator))
    status_.setMessage(kCalculator + qtText(previewTexts().companionMissing));
}

}  // namespace qor
