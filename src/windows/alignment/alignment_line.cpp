// Bands over pages.
#include "windows/alignment/alignment_line.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <cmath>
#include <utility>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "windows/qt_color.h"

namespace qor {
namespace {

constexpr int kFocusShade = 40;  // of 255

Qt::PenStyle qtStyle(PenStyle style) {
  switch (style) {
    case PenStyle::solid: return Qt::SolidLine;
    case PenStyle::dash: return Qt::DashLine;
    case PenStyle::dashDot: return Qt::DashDotLine;
    case PenStyle::dashDotDot: return Qt::DashDotDotLine;
    default: return Qt::DotLine;
  }
}

}  // namespace

AlignmentLine::AlignmentLine(LineKind kind, const LineLook& look, Page page, QWidget* area)
    : QWidget(area), kind_(kind), look_(look), page_(std::move(page)) {
  setCursor(Qt::SizeVerCursor);
  setFocusPolicy(Qt::StrongFocus);
  putTo(look.lastTop);
}

LineLook AlignmentLine::look() const {
  LineLook look = look_;
  look.lastTop = y();
  return look;
}

void AlignmentLine::setLook(const LineLook& look) {
  look_ = look;
  putTo(y());
  update();
}

void AlignmentLine::putTo(int top) {
  setGeometry(0, top, parentWidget()->width(), look_.height);
  raise();
}

// The frame lies inside, however wide the pen is. Who moves it by keys sees it shaded.
void AlignmentLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor shade = qtColor(look_.color);
  shade.setAlpha(kFocusShade);
  if (hasFocus()) painter.fillRect(rect(), shade);
  painter.setPen(QPen(qtColor(look_.color), look_.penWidth, qtStyle(penOf(look_.penStyle))));
  const double half = look_.penWidth / 2.0;
  painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}

void AlignmentLine::mousePressEvent(QMouseEvent* event) {
  dragging_ = event->button() == Qt::LeftButton;
  drag_start_ = event->position().toPoint().y();
}

void AlignmentLine::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) dragging_ = false;
  if (dragging_) dragBy(event->position().toPoint().y() - drag_start_);
}

void AlignmentLine::mouseReleaseEvent(QMouseEvent*) {
  dragging_ = false;
}

void AlignmentLine::dragBy(int way) {
  const int top = y() + way;
  rest_ = 0;
  if (way == 0 || !acceptsTop(page_.room(), top, height())) return;
  move(x(), top);
  emit moved();
}

void AlignmentLine::stepBy(double way) {
  rest_ += way;
  const int step = static_cast<int>(std::lround(rest_));
  const int top = keyTop(page_.room(), y(), height(), step);
  rest_ = top == y() + step ? rest_ - step : 0;
  if (top == y()) return;
  move(x(), top);
  emit moved();
}

void AlignmentLine::contextMenuEvent(QContextMenuEvent* event) {
  popUp(event->globalPos());
}

void AlignmentLine::popUp(const QPoint& spot) {
  dragging_ = false;
  const AlignmentTexts& texts = alignmentTexts();
  QMenu menu(this);
  menu.setObjectName("PopUpMnuUser");
  connect(menu.addAction(qtText(texts.lineProperties)), &QAction::triggered, this,
          &AlignmentLine::propertiesWanted, Qt::QueuedConnection);
  menu.addSeparator();
  connect(menu.addAction(qtText(texts.deleteLine)), &QAction::triggered, this,
          &AlignmentLine::deleteWanted, Qt::QueuedConnection);
  menu.exec(spot);
}

void AlignmentLine::keyPressEvent(QKeyEvent* event) {
  const bool byRows = event->modifiers().testFlag(Qt::ControlModifier);
  const double step = byRows ? page_.rowHeight() : 1;
  if (!byRows) rest_ = 0;
  switch (event->key()) {
    case Qt::Key_Up: return stepBy(-step);
    case Qt::Key_Down: return stepBy(step);
    case Qt::Key_Delete: return emit deleteWanted();
    case Qt::Key_Escape: return emit leaveWanted();
    case Qt::Key_F10: return popUp(mapToGlobal(rect().center()));
    default: QWidget::keyPressEvent(event);
  }
}

TRowControl::TRowControl(const LineLook& look, Page page, QWidget* area)
    : AlignmentLine(LineKind::row, look, std::move(page), area) {
  setObjectName("row_line");
}

TShapeRow::TShapeRow(const LineLook& look, Page page, QWidget* area)
    : AlignmentLine(LineKind::shape, look, std::move(page), area) {
  setObjectName("shape_line");
}

}  // namespace qor
