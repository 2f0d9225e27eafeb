// A band over the page that is dragged to a row, so that the eye can follow it. It spans the area
// that it stands in and moves up and down only.
#pragma once

#include <QWidget>
#include <functional>

#include "window_model/line_look.h"
#include "window_model/line_moves.h"

namespace qor {

class AlignmentLine : public QWidget {
  Q_OBJECT

 public:
  // What it asks of the page under it: where it may go, and how many pixels a row of the report is
  // high.
  struct Page {
    std::function<LineRoom()> room;
    std::function<double()> rowHeight;
  };

  AlignmentLine(LineKind kind, const LineLook& look, Page page, QWidget* area);

  LineKind kind() const { return kind_; }

  // Its look, with where it stands now.
  LineLook look() const;
  // Takes over all but the place.
  void setLook(const LineLook& look);

  // Stands there, as wide as the area, above everything else in it.
  void putTo(int top);

 signals:
  void moved();  // by its user
  void propertiesWanted();
  void deleteWanted();
  void leaveWanted();  // its user has done with it

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void dragBy(int way);
  void stepBy(double way);
  void popUp(const QPoint& spot);

  LineKind kind_;
  LineLook look_;
  Page page_;
  bool dragging_ = false;
  int drag_start_ = 0;  // where the button went down, pixels from the line's top
  double rest_ = 0;     // of rows, which aren't whole pixels
};

// The line for rows, and the one for shapes.
class TRowControl : public AlignmentLine {
  Q_OBJECT

 public:
  TRowControl(const LineLook& look, Page page, QWidget* area);
};

class TShapeRow : public AlignmentLine {
  Q_OBJECT

 public:
  TShapeRow(const LineLook& look, Page page, QWidget* area);
};

}  // namespace qor
