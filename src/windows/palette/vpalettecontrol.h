// The grid of colours that a palette opens: its cells, and the highlight of one of them.
#pragma once

#include <QWidget>

#include "window_model/palette_grid.h"

namespace qor {

class VPaletteControl : public QWidget {
  Q_OBJECT

 public:
  explicit VPaletteControl(QWidget* parent = nullptr);

  // The highlighted cell, kNoCell for none.
  int cell() const { return cell_; }

  // Highlights the cell of that colour; none where no cell has it.
  void setColor(Color color);

 signals:
  // A click or the space bar has taken the highlighted cell.
  void colorTaken(qor::Color color);
  // A key asks to close, or the focus is lost.
  void leaveAsked();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void highlight(int cell);
  void highlightAt(const QPoint& point);
  void take();

  int cell_ = kNoCell;
};

}  // namespace qor
