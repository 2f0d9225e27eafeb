// Moves from page to page, and over a page and on to the next one.
#pragma once

#include <QObject>

#include "window_model/page_cursor.h"

namespace qor {

class AlignmentLines;
class PageNumberEdit;
struct ViewDesk;

enum class PageSide { top, bottom, left, right };

class PageTurner : public QObject {
  Q_OBJECT

 public:
  PageTurner(ViewDesk& desk, PageNumberEdit& number, AlignmentLines& lines);

  // A move of the buttons. It starts from the number that is being typed, if one is.
  void cmdView_PageMoveTo(PageMove move);

  // Eight pages back or on; of several pages, as many as are on view.
  void leap(PageMove move);

  // Shows the top of a page.
  void goToPage(int number);

  // Shows a page as it stands, where it is on view already; else its top.
  void showPage(int number);

  // Makes one of the pages on view the current one. The view may have changed since it was clicked.
  void markPage(int number);

  // A walk over the pages: up comes to the end of the page before, down to the start of the next.
  void turnPage(int direction);

  // Steps of a bar. At an end of the page the walk goes on with the page before or behind it. With
  // an alignment line it does where the line's way ends.
  void scrollVertically(int steps);
  void scrollHorizontally(int steps);

  // To an end of what there is to scroll; lines go along to the bottom.
  void scrollTo(PageSide side);

 signals:
  void moved();   // the cursor names another page, which is to be shown
  void marked();  // the cursor names another page that is on view already

 private:
  int turnAt(int steps);
  void replayKey(int key);

  ViewDesk& desk_;
  PageNumberEdit& number_;
  AlignmentLines& lines_;
};

}  // namespace qor
