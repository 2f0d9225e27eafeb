// The scrolling area that a VPage stands in. The left button drags what is seen; the wheel scrolls,
// turns pages at their ends and, with Ctrl, zooms.
#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace qor {

class PageScroll : public QScrollArea {
  Q_OBJECT

 public:
  explicit PageScroll(QWidget* parent = nullptr);

  // The control that stands in the area.
  void setControl(QWidget* control);

  // The area without bars, and how thick a bar is.
  QSize fullArea() const { return maximumViewportSize(); }
  int barThickness() const;

  // Spots of what is seen, pixels from its corner: the middle, and one as the control counts it.
  QPoint middle() const { return viewport()->rect().center(); }
  QPointF spotInControl(const QPoint& seen) const;

  // Scrolls until a spot of the control is seen at one of the area, or as near as can be.
  void bring(const QPointF& spotInControl, const QPoint& seen);

  void scrollToStart();
  void scrollToEnd() { verticalScrollBar()->setValue(verticalScrollBar()->maximum()); }

  // Whether there is nothing more to see above or below.
  bool isAtTop() const { return verticalScrollBar()->value() <= verticalScrollBar()->minimum(); }
  bool isAtBottom() const { return verticalScrollBar()->value() >= verticalScrollBar()->maximum(); }

 public slots:
  void putControl(const QPoint& origin, const QSize& size);

 signals:
  void resized();
  // A step of the wheel beyond the end of what there is to scroll: -1 up, 1 down.
  void wheelBeyondEnd(int direction);
  void wheelZoomed(int direction, const QPoint& seen);  // 1 larger, -1 smaller

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool pScrollMouseDown(const QMouseEvent& event);
  bool pScrollMouseMove(const QMouseEvent& event);
  bool pScrollMouseUp(const QMouseEvent& event);
  void endDrag();
  int wheelSteps(int delta);

  QWidget* board_;
  QWidget* control_ = nullptr;
  bool dragging_ = false;
  QPoint drag_;  // last point of the mouse, on the screen
  int wheel_rest_ = 0;
};

}  // namespace qor
