// The scale of the paper under a page that keeps its size: an edit and its arrows in the toolbar.
#pragma once

#include <QObject>

namespace qor {

class PageShow;
struct ViewDesk;

class PaperScale : public QObject {
  Q_OBJECT

 public:
  PaperScale(ViewDesk& desk, PageShow& pages);

  // Back to 100 percent, for the next time.
  void reset();

  // Shows the page at the scale of the edit.
  void ShowPageScale();

 private:
  void UpDown1Click();

  ViewDesk& desk_;
  PageShow& pages_;
};

}  // namespace qor
