// The scale of the paper under a page that keeps its size: an edit and its arrows in the toolbar.
#pragma once

namespace qor {

class PageShow;
struct ViewDesk;

class PaperScale {
 public:
  PaperScale(ViewDesk& desk, PageShow& pages);

  // Back to 100 percent, for the next time.
  void reset();

  // Shows the page at the scale of the edit, or at that of the arrows.
  void ShowPageScale();
  void UpDown1Click();

 private:
  ViewDesk& desk_;
  PageShow& pages_;
};

}  // namespace qor
