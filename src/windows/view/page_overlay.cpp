// Above the page.
#include "windows/view/page_overlay.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

namespace qor {

PageOverlay::PageOverlay(QWidget* board) : QWidget(board) {
  setObjectName("pageOverlay");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void PageOverlay::setShown(OverlayLayer& layer, bool shown) {
  const bool isThere = std::ranges::find(layers_, &layer) != layers_.end();
  if (shown && !isThere) layers_.push_back(&layer);
  if (!shown) std::erase(layers_, &layer);
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
