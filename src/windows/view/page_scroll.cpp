// Scrolling over pages.
#include "windows/view/page_scroll.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QStyle>
#include <QWheelEvent>
#include <utility>

#include "window_model/sheet_view.h"

namespace qor {
namespace {

constexpr int kWheelStep = 120;  // as the system counts a step

}  // namespace

PageScroll::PageScroll(QWidget* parent) : QScrollArea(parent), board_(new QWidget) {
  setFrameShape(QFrame::NoFrame);
  setBackgroundRole(QPalette::Mid);
  setFocusPolicy(Qt::StrongFocus);
  board_->setBackgroundRole(QPalette::Mid);
  setWidget(board_);
  // Mouse events that the control leaves come to its parents.
  board_->installEventFilter(this);
  viewport()->installEventFilter(this);
}

void PageScroll::setControl(QWidget* control) {
  control_ = control;
  control->setParent(board_);
}

int PageScroll::barThickness() const {
  return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

// A control that is larger than the area ends beyond the board: its gap at the far side serves as
// the one before it.
void PageScroll::putControl(const QPoint& origin, const QSize& size) {
  control_->move(origin);
  control_->show();
  const ScreenArea area = {{fullArea().width(), fullArea().height()}};
  const Extent left = areaBesideBars(area, {size.width(), size.height()}, barThickness()).client;
  board_->resize(size.expandedTo({left.Width, left.Height}));
  // The bars come now and not with the next events: whoever placed the control may scroll at once.
  QEvent layout(QEvent::LayoutRequest);
  QCoreApplication::sendEvent(this, &layout);
}

QPointF PageScroll::spotInControl(const QPoint& seen) const {
  return control_->mapFrom(viewport(), seen);
}

void PageScroll::bring(const QPointF& spotInControl, const QPoint& seen) {
  const QPoint scrolled = control_->pos() + spotInControl.toPoint() - seen;
  horizontalScrollBar()->setValue(scrolled.x());
  verticalScrollBar()->setValue(scrolled.y());
}

void PageScroll::scrollToStart() {
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
}

// The area's own size: that of its inside changes with the bars, too.
bool PageScroll::event(QEvent* event) {
  const bool result = QScrollArea::event(event);
  if (event->type() == QEvent::Resize) emit resized();
  return result;
}

bool PageScroll::eventFilter(QObject* watched, QEvent* event) {
  const auto* mouse = dynamic_cast<QMouseEvent*>(event);
  if (mouse != nullptr) {
    switch (mouse->type()) {
      case QEvent::MouseButtonPress: return pScrollMouseDown(*mouse);
      case QEvent::MouseMove: return pScrollMouseMove(*mouse);
      case QEvent::MouseButtonRelease: return pScrollMouseUp(*mouse);
      default: break;
    }
  }
  return QScrollArea::eventFilter(watched, event);
}

bool PageScroll::pScrollMouseDown(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  dragging_ = true;
  drag_ = event.globalPosition().toPoint();
  if (control_ != nullptr) control_->setCursor(Qt::ClosedHandCursor);
  return true;
}

bool PageScroll::pScrollMouseMove(const QMouseEvent& event) {
  // The release may have gone to somebody else.
  if (!event.buttons().testFlag(Qt::LeftButton)) endDrag();
  if (!dragging_) return false;
  const QPoint point = event.globalPosition().toPoint();
  const QPoint way = point - drag_;
  drag_ = point;
  if (horizontalScrollBar()->isVisible())
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
  if (verticalScrollBar()->isVisible())
    verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
  return true;
}

bool PageScroll::pScrollMouseUp(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  endDrag();
  return true;
}

void PageScroll::endDrag() {
  if (!std::exchange(dragging_, false)) return;
  if (control_ != nullptr) control_->setCursor(Qt::OpenHandCursor);
}

// Whole steps; fine wheels give parts of one, which add up.
int PageScroll::wheelSteps(int delta) {
  if ((delta > 0) != (wheel_rest_ > 0)) wheel_rest_ = 0;
  wheel_rest_ += delta;
  const int steps = wheel_rest_ / kWheelStep;
  wheel_rest_ %= kWheelStep;
  return steps;
}

void PageScroll::wheelEvent(QWheelEvent* event) {
  const int delta = event->angleDelta().y();
  const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
  const bool beyond = delta < 0 ? isAtBottom() : isAtTop();
  if (delta == 0 || (!zooms && !beyond)) {
    QScrollArea::wheelEvent(event);
    return;
  }
  event->accept();
  const int steps = wheelSteps(delta);
  if (steps == 0) return;
  if (zooms) {
    emit wheelZoomed(steps > 0 ? 1 : -1, event->position().toPoint());
  } else {
    emit wheelBeyondEnd(steps > 0 ? -1 : 1);
  }
}

}  // namespace qor
