// Pictures of pages.
#include "windows/view/page_image.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "windows/bitmap_image.h"
#include "windows/failure_text.h"

namespace qor {
namespace {

// The dots of the bitmap, not copied.
QImage imageOf(PageBitmap& bitmap) {
  QImage image = imageOver(bitmap.pixels());
  image.setDevicePixelRatio(bitmap.dotsPerPixel());
  return image;
}

}  // namespace

PageImage::PageImage(QWidget* parent) : QWidget(parent) {
  // Nothing behind it needs to be painted.
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PageImage::show(PageBitmap::Paint paint) {
  paint_ = std::move(paint);
  failure_.clear();
  bitmap_.start({width(), height()}, devicePixelRatioF(), logicalDpiX(), paint_);
  QWidget::show();
  update();
}

void PageImage::draw() {
  waiting_ = false;
  if (cover(rect())) update();
}

bool PageImage::cover(const QRect& seen) {
  if (!failure_.isNull()) return false;
  // The window may have been moved to a screen of another resolution.
  if (bitmap_.dotsPerPixel() != devicePixelRatioF())
    bitmap_.start({width(), height()}, devicePixelRatioF(), logicalDpiX(), paint_);
  failure_ = failureOf([&] {
    bitmap_.cover(
        {seen.left(), seen.top(), seen.left() + seen.width(), seen.top() + seen.height()});
  });
  if (failure_.isNull()) {
    emit drawn();
    return true;
  }
  emit drawingFailed(failure_);
  return false;
}

void PageImage::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (!waiting_ && cover(visibleRegion().boundingRect())) {
    paintPart(painter, event->rect());
    return;
  }
  painter.fillRect(rect(), palette().color(QPalette::Mid));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, failure_);
}

void PageImage::paintPart(QPainter& painter, const QRect& part) {
  const qreal ratio = bitmap_.dotsPerPixel();
  const QPointF corner(bitmap_.corner().x / ratio, bitmap_.corner().y / ratio);
  const QRectF target = part;
  // Where dots are finer than pixels, the widget may touch a dot beyond the last of the view.
  if (ratio != std::floor(ratio)) painter.fillRect(part, palette().color(QPalette::Mid));
  const QRectF source((target.topLeft() - corner) * ratio, target.size() * ratio);
  painter.drawImage(target, imageOf(bitmap_), source);
}

}  // namespace qor
