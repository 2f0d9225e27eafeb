// Above the page.
#include "windows/view/page_overlay.h"

#include <QPaintEvent>
#include <QPainter>

namespace qor {

PageOverlay::PageOverlay(QWidget* board) : QWidget(board) {
  setObjectName("pageOverlay");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void PageOverlay::add(OverlayLayer& layer) {
  layers_.push_back(&layer);
  appear();
}

void PageOverlay::remove(OverlayLayer& layer) {
  std::erase(layers_, &layer);
  appear();
}

void PageOverlay::cover(const PageView& view) {
  view_ = view;
  setGeometry(parentWidget()->rect());
  appear();
}

void PageOverlay::leave() {
  view_.reset();
  appear();
}

void PageOverlay::appear() {
  setVisible(view_ && !layers_.empty());
  if (isHidden()) return;
  raise();
  update();
}

std::optional<PageMapping> PageOverlay::mapping() const {
  if (!view_) return std::nullopt;
  return PageMapping(*view_, devicePixelRatioF());
}

void PageOverlay::paintEvent(QPaintEvent* event) {
  const auto seen = mapping();
  if (!seen) return;
  QPainter painter(this);
  painter.setClipRect(event->rect());
  for (OverlayLayer* layer : layers_) {
    painter.save();
    layer->paint(painter, *seen);
    painter.restore();
  }
}

}  // namespace qor
