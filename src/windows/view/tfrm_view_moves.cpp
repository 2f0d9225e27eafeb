// Moving from page to page.
#include <QToolButton>

#include "ui_tfrm_view.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_menu.h"
#include "windows/view/vpage.h"

namespace qor {

void TfrmView::cmdView_PageMoveTo(PageMove move) {
  const PageEdge edge = cursor_.takeEdge();
  if (cursor_.total() == 0) return;
  leavePageEdit();
  const int target = cursor_.target(move);
  const bool isOnView = cursor_.showsSeveral() && target == cursor_.current();
  if (isOnView && page_control_->showsPages()) {
    ui_->pScroll->scrollToStart();
  } else {
    goToPage(target);
  }
  if (edge == PageEdge::end) ui_->pScroll->scrollToEnd();
}

// Shows the top of a page.
void TfrmView::goToPage(int number) {
  ui_->pScroll->scrollToStart();
  cursor_.goTo(number);
  cmbPagesChange();
  ui_->pScroll->scrollToStart();
}

// Makes one of the pages on view the current one. The view may have changed since it was clicked.
void TfrmView::markPage(int number) {
  if (!page_control_->MarkPage(number)) return goToPage(number);
  cursor_.mark(number);
  showCurrentPage();
  selectInPageList();
  showPageNumber();
  describeView();
  updateMoves();
}

// A walk over the pages: up comes to the end of the page before, down to the start of the next.
void TfrmView::turnPage(int direction) {
  if (direction > 0 && cursor_.hasPageBehind()) {
    cmdView_PageMoveTo(PageMove::next);
  } else if (direction < 0 && cursor_.hasPageBefore()) {
    cursor_.wishForEnd();
    cmdView_PageMoveTo(PageMove::previous);
  }
}

// Moves that lead nowhere are off.
void TfrmView::updateMoves() {
  const auto enable = [this](PageMove move, QToolButton* button, QAction* entry) {
    button->setEnabled(cursor_.leads(move));
    entry->setEnabled(cursor_.leads(move));
  };
  enable(PageMove::first, ui_->cmdView_First, menu_->mnuFirst);
  enable(PageMove::previous, ui_->cmdView_Prev, menu_->mnuPrev);
  enable(PageMove::next, ui_->cmdView_Next, menu_->mnuNext);
  enable(PageMove::last, ui_->cmdView_Last, menu_->mnuLast);
}

}  // namespace qor
