// Dragging widths.
#include "windows/view/size_line.h"

#include <QMouseEvent>
#include <algorithm>

namespace qor {

SizeLine::SizeLine(QWidget* parent) : QFrame(parent) {
  setCursor(Qt::SplitHCursor);
}

void SizeLine::setSized(QWidget* sized, int smallest, int largest) {
  sized_ = sized;
  smallest_ = smallest;
  largest_ = largest;
}

void SizeLine::mousePressEvent(QMouseEvent* event) {
  start_ = event->globalPosition().toPoint().x() - sized_->width();
}

void SizeLine::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const int width = event->globalPosition().toPoint().x() - start_;
  sized_->setFixedWidth(std::clamp(width, smallest_, largest_));
}

}  // namespace qor
