// What the parts of the window work on together: its controls, what it remembers, and where in the
// report it stands. The window makes it before its parts, which own what is theirs alone.
#pragma once

#include <string>
#include <vector>

#include "ui_tfrm_view.h"
#include "window_model/growth_watch.h"
#include "window_model/page_cursor.h"
#include "window_model/view_state.h"
#include "windows/view/status_panels.h"
#include "windows/view/vpage.h"

namespace qor {

class PassingHint;

struct ViewDesk {
  explicit ViewDesk(QMainWindow* window);

  Ui::TfrmView ui;
  VPage* page_control;
  PassingHint* hint;  // at the bottom of the scrolling area
  StatusPanels status;
  ViewState state;
  PageCursor cursor;
  GrowthWatch growth;
  int firstPageWidth = 0;  // of the page as it was shown first, pixels
  bool busy = false;       // a job reads the document: nobody else may, and the window stays open
  std::vector<std::string> made;  // files that the user has asked for
};

}  // namespace qor
