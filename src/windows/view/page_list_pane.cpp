// Pages in a list.
#include "windows/view/page_list_pane.h"

#include "windows/view/page_list_model.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kWidth = 150;  // pixels
constexpr int kSmallest = 60;
constexpr int kLargest = 600;

}  // namespace

PageListPane::PageListPane(ViewDesk& desk) : desk_(desk), lines_(new PageListModel(this)) {
  QListView* list = desk.ui.lstPages;
  list->setModel(lines_);
  list->setFixedWidth(kWidth);
  desk.ui.pSizeLine->setSized(list, kSmallest, kLargest);
  // Pages are changed once the list has done with its event.
  connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &PageListPane::lstPagesClick, Qt::QueuedConnection);
  connect(list, &QListView::clicked, this, &PageListPane::lstPagesClickAgain);
}

void PageListPane::applyState() {
  desk_.ui.lstPages->setVisible(desk_.state.ListView);
  desk_.ui.pSizeLine->setVisible(desk_.state.ListView);
  fill();
}

void PageListPane::fill() {
  lines_->setPageCount(desk_.state.ListView ? desk_.cursor.total() : 0);
  select();
}

void PageListPane::select() {
  if (!desk_.state.ListView) return;
  const QModelIndex index = lines_->index(desk_.cursor.current() - 1);
  desk_.ui.lstPages->setCurrentIndex(index);
  desk_.ui.lstPages->scrollTo(index);
}

void PageListPane::retranslate() {
  lines_->retranslate();
}

void PageListPane::lstPagesClick() {
  const QModelIndexList chosen = desk_.ui.lstPages->selectionModel()->selectedIndexes();
  if (chosen.isEmpty()) return select();
  const int number = chosen.front().row() + 1;
  if (number != desk_.cursor.current()) emit pageChosen(number);
}

// A click goes to the page also where it is on view already.
void PageListPane::lstPagesClickAgain(const QModelIndex& line) {
  if (line.row() + 1 == desk_.cursor.current()) desk_.ui.pScroll->scrollToStart();
}

}  // namespace qor
