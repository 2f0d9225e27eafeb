// What the window tells of the page on view beside it: in the status bar, and to those who hear the
// window.
#pragma once

#include <QString>

namespace qor {

class PageZoom;
struct ViewDesk;

class PageStatus {
 public:
  PageStatus(ViewDesk& desk, const PageZoom& zoom) : desk_(desk), zoom_(zoom) {}

  // A message for while there is nothing else to say.
  void setStandingMessage(const QString& text) { standing_ = text; }

  // The dates of the report's file.
  void tellDates();

  // Starts anew with a page that is to be shown.
  void startPage();

  // That a report has changed although nobody said it would: its pages may not be where they were.
  void tellFileState();

  // The number of the page; and the same with the zoom, once it is on view.
  void tellNumber();
  void describeView();

 private:
  ViewDesk& desk_;
  const PageZoom& zoom_;
  QString standing_;
};

}  // namespace qor
