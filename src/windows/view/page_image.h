// The picture of a page on the screen, drawn when it is first seen.
#pragma once

#include <QWidget>
#include <functional>

#include "window_model/page_bitmap.h"

class QPainter;

namespace qor {

class PageImage : public QWidget {
  Q_OBJECT

 public:
  explicit PageImage(QWidget* parent);

  // Shows a view of the widget's size. Where its drawing fails, the reason stands in its place and
  // is reported once.
  void show(PageBitmap::Paint paint);

  // Draws all of it now, where it would wait to be seen.
  void draw();

  // Why the view can't be drawn; null while nothing is wrong with it.
  const QString& failure() const { return failure_; }

  // Paints the ground only, while the drawing waits for its turn.
  void setWaiting(bool waiting) { waiting_ = waiting; }

 signals:
  void drawn();  // some of it, and nothing failed
  void drawingFailed(const QString& reason);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool cover(const QRect& seen);
  void paintPart(QPainter& painter, const QRect& part);

  PageBitmap bitmap_;
  PageBitmap::Paint paint_;
  QString failure_;
  bool waiting_ = false;
};

}  // namespace qor
