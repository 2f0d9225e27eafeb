// Moving from page to page.
#include <QToolButton>
#include <algorithm>

#include "document/vdoc.h"
#include "ui_tfrm_view.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_menu.h"
#include "windows/view/vpage.h"

namespace qor {

// How many pages a move passes over.
int TfrmView::pagesInStep() const {
  return state_.showsSeveral() ? pages_on_view_ : 1;
}

// Moves start from the first page on view, so that none is passed over.
int TfrmView::firstShown() const {
  return state_.showsSeveral() ? first_on_view_ : currentPage();
}

// The page that a move leads to. Where the last ones are on view the current one stays.
int TfrmView::moveTarget(PageMove move) const {
  const int total = doc_ == nullptr ? 0 : doc_->PageCount;
  const int from = firstShown();
  const int target = std::min(total, movedPage(move, from, total, pagesInStep()));
  const bool forward = move == PageMove::next || move == PageMove::last;
  return forward && target == from ? currentPage() : target;
}

void TfrmView::cmdView_PageMoveTo(PageMove move) {
  const bool toEnd = std::exchange(endAfterMove_, false);
  if (doc_ == nullptr || doc_->PageCount == 0) return;
  leavePageEdit();
  const int target = moveTarget(move);
  const bool isOnView = state_.showsSeveral() && target == currentPage();
  if (isOnView && page_control_->showsPages()) {
    ui_->pScroll->scrollToStart();
  } else {
    goToPage(target);
  }
  if (toEnd) ui_->pScroll->scrollToEnd();
}

// Shows the top of a page.
void TfrmView::goToPage(int number) {
  ui_->pScroll->scrollToStart();
  setCurrentPage(number);
  cmbPagesChange();
  ui_->pScroll->scrollToStart();
}

// Makes one of the pages on view the current one. The view may have changed since it was clicked.
void TfrmView::markPage(int number) {
  if (!page_control_->MarkPage(number)) return goToPage(number);
  setCurrentPage(number);
  selectInPageList();
  showPageNumber();
  describeView();
  updateMoves();
}

// A walk over the pages: up comes to the end of the page before, down to the start of the next.
void TfrmView::turnPage(int direction) {
  const int total = doc_ == nullptr ? 0 : doc_->PageCount;
  if (direction > 0 && currentPage() < total) {
    cmdView_PageMoveTo(PageMove::next);
  } else if (direction < 0 && firstShown() > 1) {
    endAfterMove_ = true;
    cmdView_PageMoveTo(PageMove::previous);
  }
}

// Moves that lead nowhere are off.
void TfrmView::updateMoves() {
  const int total = doc_ == nullptr ? 0 : doc_->PageCount;
  const auto leads = [&](PageMove move) { return total > 0 && moveTarget(move) != currentPage(); };
  const auto enable = [&leads](PageMove move, QToolButton* button, QAction* entry) {
    button->setEnabled(leads(move));
    entry->setEnabled(leads(move));
  };
  enable(PageMove::first, ui_->cmdView_First, menu_->mnuFirst);
  enable(PageMove::previous, ui_->cmdView_Prev, menu_->mnuPrev);
  enable(PageMove::next, ui_->cmdView_Next, menu_->mnuNext);
  enable(PageMove::last, ui_->cmdView_Last, menu_->mnuLast);
}

}  // namespace qor
