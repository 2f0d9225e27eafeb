// How pages are shown: kind of view, several at once, the list of pages, what is hidden. Each
// switch changes the state and shows the page accordingly.
#pragma once

#include <QObject>

#include "window_model/view_state.h"

namespace qor {

class PageListPane;
class PageShow;
class PaperScale;
struct ViewDesk;

class ViewSwitches : public QObject {
  Q_OBJECT

 public:
  ViewSwitches(ViewDesk& desk, PageShow& pages, PageListPane& list, PaperScale& scale);

  void cmdView_SetPreviewTypeClick(PreviewKind kind);
  void rbMultiPageViewClick(bool several);
  void mnuListViewClick();
  void mnuUnprintableClick();
  void mnuFullScreenClick();

  // Shows or hides what the state says.
  void cmdView_SetListViewClick();
  void applyFullWindow();

 signals:
  void stateChanged();  // and the view is to be remembered
  void kindChanged();   // of the view; its pages are on show

 private:
  ViewDesk& desk_;
  PageShow& pages_;
  PageListPane& list_;
  PaperScale& scale_;
};

}  // namespace qor
