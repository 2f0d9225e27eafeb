// The text tool.
#include "windows/selection/text_tool.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "windows/qt_letters.h"
#include "windows/selection/page_selection.h"
#include "windows/selection/selection_keys.h"
#include "windows/view/page_overlay.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kScrollInterval = 40;  // ms
constexpr int kFastest = 60;         // pixels at once

// How far a value is outside of a range, at most the fastest; 0 within.
int beyond(int value, int first, int last) {
  const int way = value < first ? value - first : std::max(0, value - last);
  return std::clamp(way, -kFastest, kFastest);
}

}  // namespace

TextTool::TextTool(ViewDesk& desk, PageSelection& selection)
    : desk_(desk), selection_(selection), beyond_(new QTimer(this)) {
  // They come before the area's own filters.
  desk.ui.pScroll->widget()->installEventFilter(this);
  desk.ui.pScroll->viewport()->installEventFilter(this);
  connect(beyond_, &QTimer::timeout, this, &TextTool::scrollOn);
}

void TextTool::mnuTextToolClick() {
  chosen_ = !chosen_;
  endDrag();
  showPointer();
  emit toggled();
}

void TextTool::showPointer() {
  extending_ = false;
  const bool selects = chosen_ && desk_.page_control->overlay().mapping();
  desk_.page_control->setCursor(selects ? Qt::IBeamCursor : Qt::OpenHandCursor);
}

bool TextTool::takesKey(const QKeyEvent& event) {
  const bool goesOn = extending_ || !selection_.isEmpty();
  if (!chosen_ || !event.spontaneous() || !goesOn) return false;
  const bool taken = extendByKey(selection_, event, desk_);
  extending_ = extending_ || taken;
  return taken;
}

bool TextTool::eventFilter(QObject* watched, QEvent* event) {
  const auto* mouse = dynamic_cast<QMouseEvent*>(event);
  if (mouse != nullptr) {
    switch (mouse->type()) {
      case QEvent::MouseButtonPress: return mouseDown(*mouse);
      case QEvent::MouseButtonDblClick: return doubleClick(*mouse);
      case QEvent::MouseMove: return mouseMove(*mouse);
      case QEvent::MouseButtonRelease: return mouseUp(*mouse);
      default: break;
    }
  }
  return QObject::eventFilter(watched, event);
}

bool TextTool::isFor(const QMouseEvent& event) {
  return event.button() == Qt::LeftButton &&
         (chosen_ || event.modifiers().testFlag(Qt::AltModifier)) && selection_.isPossible();
}

bool TextTool::isThirdClick(const QPoint& onScreen) const {
  const QStyleHints& hints = *QGuiApplication::styleHints();
  return since_two_.isValid() && !since_two_.hasExpired(hints.mouseDoubleClickInterval()) &&
         (onScreen - two_at_).manhattanLength() < hints.startDragDistance();
}

bool TextTool::mouseDown(const QMouseEvent& event) {
  if (!isFor(event)) return false;
  pointer_ = event.globalPosition().toPoint();
  if (isThirdClick(pointer_)) {
    selection_.changeAt(
        pointer_, [](auto& selected, auto& map, auto& spot) { selected.takeLine(map, spot); });
    selection_.offer();
  } else {
    begin(event);
  }
  since_two_.invalidate();
  return true;
}

void TextTool::begin(const QMouseEvent& event) {
  dragging_ = true;
  extending_ = false;
  desk_.page_control->setCursor(Qt::IBeamCursor);
  if (event.modifiers().testFlag(Qt::ShiftModifier) && !selection_.isEmpty())
    return extendTo(pointer_);
  const SelectionKind kind = event.modifiers().testFlag(Qt::ControlModifier)
                                 ? SelectionKind::rectangle
                                 : SelectionKind::lines;
  selection_.changeAt(
      pointer_, [kind](auto& selected, auto& map, auto& spot) { selected.start(map, kind, spot); });
}

bool TextTool::doubleClick(const QMouseEvent& event) {
  if (!isFor(event)) return false;
  two_at_ = event.globalPosition().toPoint();
  since_two_.start();
  selection_.changeAt(two_at_, [](auto& selected, auto& map, auto& spot) {
    selected.takeWord(map, spot, kQtLetters);
  });
  selection_.offer();
  return true;
}

bool TextTool::mouseMove(const QMouseEvent& event) {
  if (!dragging_) return false;
  // The release may have gone to somebody else.
  if (!event.buttons().testFlag(Qt::LeftButton)) {
    endDrag();
    return false;
  }
  pointer_ = event.globalPosition().toPoint();
  extendTo(pointer_);
  const QWidget& seen = *desk_.ui.pScroll->viewport();
  if (seen.rect().contains(seen.mapFromGlobal(pointer_))) {
    beyond_->stop();
  } else if (!beyond_->isActive()) {
    beyond_->start(kScrollInterval);
  }
  return true;
}

void TextTool::extendTo(const QPoint& onScreen) {
  selection_.changeAt(onScreen,
                      [](auto& selected, auto& map, auto& spot) { selected.extend(map, spot); });
}

void TextTool::scrollOn() {
  const PageScroll& area = *desk_.ui.pScroll;
  const QRect seen = area.viewport()->rect();
  const QPoint at = area.viewport()->mapFromGlobal(pointer_);
  QScrollBar* across = area.horizontalScrollBar();
  QScrollBar* down = area.verticalScrollBar();
  across->setValue(across->value() + beyond(at.x(), seen.left(), seen.right()));
  down->setValue(down->value() + beyond(at.y(), seen.top(), seen.bottom()));
  extendTo(pointer_);
}

bool TextTool::mouseUp(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || !dragging_) return false;
  endDrag();
  return true;
}

void TextTool::endDrag() {
  beyond_->stop();
  if (!std::exchange(dragging_, false)) return;
  showPointer();
  selection_.offer();
}

}  // namespace qor
