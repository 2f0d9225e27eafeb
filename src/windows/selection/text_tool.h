// Selecting by mouse and keys. While the tool is chosen a drag selects text in reading order, with
// Ctrl a rectangle; a double click takes a word, a triple one a line, and Shift leads on from what
// is selected. With Alt a drag selects without it, for once. All else is left to the scrolling
// area.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>

class QKeyEvent;
class QMouseEvent;
class QTimer;

namespace qor {

class PageSelection;
struct ViewDesk;

class TextTool : public QObject {
  Q_OBJECT

 public:
  TextTool(ViewDesk& desk, PageSelection& selection);

  bool isChosen() const { return chosen_; }

  // Takes the text tool in the place of the hand, or puts it back.
  void mnuTextToolClick();

  // Extends what is selected, where the key is one for that; true if so. A key that the window
  // sends to itself is none.
  bool takesKey(const QKeyEvent& event);

  // The pointer shows the tool, where a page can be selected from.
  void showPointer();

 signals:
  void toggled();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool mouseDown(const QMouseEvent& event);
  bool mouseMove(const QMouseEvent& event);
  bool mouseUp(const QMouseEvent& event);
  bool doubleClick(const QMouseEvent& event);
  bool isFor(const QMouseEvent& event);
  bool isThirdClick(const QPoint& onScreen) const;
  void begin(const QMouseEvent& event);
  void extendTo(const QPoint& onScreen);
  void scrollOn();
  void endDrag();

  ViewDesk& desk_;
  PageSelection& selection_;
  bool chosen_ = false;
  bool dragging_ = false;
  bool extending_ = false;   // by keys, which may pass the place where it began
  QPoint pointer_;           // last, on the screen
  QTimer* beyond_;           // scrolls while a drag is outside of the area
  QElapsedTimer since_two_;  // clicks
  QPoint two_at_;
};

}  // namespace qor
