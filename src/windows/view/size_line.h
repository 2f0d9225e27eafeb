// A thin line that the mouse drags to change the width of the control at its left.
#pragma once

#include <QFrame>

namespace qor {

class SizeLine : public QFrame {
  Q_OBJECT

 public:
  explicit SizeLine(QWidget* parent = nullptr);

  void setSized(QWidget* sized, int smallest, int largest);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QWidget* sized_ = nullptr;
  int smallest_ = 0;
  int largest_ = 0;
  int start_ = 0;  // of the mouse, less the width
};

}  // namespace qor
