// Drawing the palette's cells, and choosing one by keys or mouse.
#include "windows/palette/vpalettecontrol.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <optional>

#include "platform/qt/qt_text.h"

namespace qor {
namespace {

QRect qtRect(const Rect& rect) {
  return {rect.left, rect.top, static_cast<int>(rect.width()), static_cast<int>(rect.height())};
}

SColor colorOfCell(int cell) {
  return paletteColors().at(static_cast<std::size_t>(cell));
}

QString textOfCell(int cell) {
  return cell == kNoCell ? QString() : qtText(colorText(colorOfCell(cell)));
}

std::optional<CellMove> moveOfKey(int key) {
  switch (key) {
    case Qt::Key_Left: return CellMove::left;
    case Qt::Key_Right: return CellMove::right;
    case Qt::Key_Up: return CellMove::up;
    case Qt::Key_Down: return CellMove::down;
    default: return std::nullopt;
  }
}

bool isLeavingKey(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
}

void drawCell(QPainter& painter, int cell) {
  const SColor color = colorOfCell(cell);
  const QRect place = qtRect(cellRect(cell, CellCheck::strict)).adjusted(1, 1, -1, -1);
  painter.fillRect(place, QColor(color.red, color.green, color.blue));
  painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

// Two tones are seen on every colour.
void drawHighlight(QPainter& painter, const QRect& cell) {
  const QRectF place(cell);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
  painter.setPen(QPen(Qt::white, 2));
  painter.drawRect(place.adjusted(2, 2, -2, -2));
}

}  // namespace

VPaletteControl::VPaletteControl(QWidget* parent) : QWidget(parent) {
  setFixedSize(kPaletteColumns * kCellSize, kPaletteRows * kCellSize);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

void VPaletteControl::setColor(Color color) {
  highlight(cellOfColor(SColor(color)));
}

void VPaletteControl::highlight(int cell) {
  update(qtRect(cellRect(cell_)));
  cell_ = cell;
  update(qtRect(cellRect(cell_)));
  // Read out to those who don't see it.
  setAccessibleDescription(textOfCell(cell_));
}

void VPaletteControl::highlightAt(const QPoint& point) {
  const Rect found = cellRectAt({point.x(), point.y()}, cellRect(cell_));
  if (const int cell = cellOfRect(found); cell != kNoCell) highlight(cell);
}

void VPaletteControl::take() {
  if (cell_ != kNoCell) emit colorTaken(colorOfCell(cell_).value());
}

bool VPaletteControl::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // The keys are its own, whatever they mean to the window below it.
    event->accept();
    return true;
  }
  if (event->type() == QEvent::ToolTip) {
    const QPoint place = static_cast<QHelpEvent*>(event)->globalPos();
    QToolTip::showText(place, textOfCell(cell_), this, qtRect(cellRect(cell_)));
    return true;
  }
  return QWidget::event(event);
}

void VPaletteControl::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  for (int cell = 0; cell < kPaletteCells; ++cell) drawCell(painter, cell);
  if (cell_ != kNoCell) drawHighlight(painter, qtRect(cellRect(cell_)));
}

void VPaletteControl::keyPressEvent(QKeyEvent* event) {
  if (const auto move = moveOfKey(event->key())) {
    highlight(movedCell(cell_, *move));
  } else if (event->key() == Qt::Key_Space) {
    take();
  } else if (isLeavingKey(event->key())) {
    emit leaveAsked();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void VPaletteControl::mousePressEvent(QMouseEvent* event) {
  highlightAt(event->position().toPoint());
}

void VPaletteControl::mouseMoveEvent(QMouseEvent* event) {
  highlightAt(event->position().toPoint());
}

void VPaletteControl::mouseReleaseEvent(QMouseEvent* event) {
  const bool isInside = rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton && isInside) take();
}

void VPaletteControl::focusOutEvent(QFocusEvent*) {
  emit leaveAsked();
}

}  // namespace qor
