// Switching views.
#include "windows/view/view_switches.h"

#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/view/page_list_pane.h"
#include "windows/view/page_show.h"
#include "windows/view/paper_scale.h"
#include "windows/view/passing_hint.h"
#include "windows/view/preview_printer.h"
#include "windows/view/view_desk.h"

namespace qor {

ViewSwitches::ViewSwitches(ViewDesk& desk, PageShow& pages, PageListPane& list, PaperScale& scale)
    : desk_(desk), pages_(pages), list_(list), scale_(scale) {
}

void ViewSwitches::cmdView_SetPreviewTypeClick(PreviewKind kind) {
  desk_.state.PreviewType = kind;
  desk_.ui.pScroll->scrollToStart();
  if (VDoc* doc = pages_.document()) openPrinterForView(desk_, *doc);
  pages_.ShowPage();
  scale_.reset();
  emit kindChanged();
  emit stateChanged();
}

void ViewSwitches::rbMultiPageViewClick(bool several) {
  desk_.state.MultipageView = several;
  if (several) desk_.cursor.startWithCurrent();
  desk_.ui.pScroll->scrollToStart();
  pages_.ShowPage();
  desk_.ui.pScroll->scrollToStart();
  emit stateChanged();
}

void ViewSwitches::cmdView_SetListViewClick() {
  list_.applyState();
  pages_.ShowPage();
  emit stateChanged();
}

void ViewSwitches::mnuListViewClick() {
  desk_.state.ListView = !desk_.state.ListView;
  cmdView_SetListViewClick();
}

void ViewSwitches::mnuUnprintableClick() {
  desk_.state.ShowUnprintable = !desk_.state.ShowUnprintable;
  pages_.ShowPage();
  emit stateChanged();
}

void ViewSwitches::mnuFullScreenClick() {
  desk_.state.FlagFullWindow = !desk_.state.FlagFullWindow;
  applyFullWindow();
  emit stateChanged();
}

void ViewSwitches::applyFullWindow() {
  const bool alone = desk_.state.FlagFullWindow;
  desk_.ui.pTools->setVisible(!alone);
  desk_.ui.stBar->setVisible(!alone);
  desk_.hint->hide();
  if (alone) desk_.hint->tell(qtText(previewTexts().leavesFullWindow));
}

}  // namespace qor
