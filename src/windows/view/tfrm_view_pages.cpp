// Showing pages.
#include <QLineEdit>
#include <QListView>
#include <algorithm>

#include "document/code_page.h"
#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "settings/printers.h"
#include "ui_tfrm_view.h"
#include "window_model/preview_texts.h"
#include "windows/failure_text.h"
#include "windows/view/page_list_model.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {
namespace {

constexpr int kFewestDigits = 3;  // of a page number that the window leaves room for
constexpr int kTypedDigits = 6;   // that can be typed at least
constexpr int kEditFrame = 14;    // and for what is around them in an edit, pixels

}  // namespace

void TfrmView::showCurrentPage() {
  const QString number = QString::number(cursor_.current());
  ui_->lblPageCurrent->setText(number);
  ui_->lblPageCurrent->setAccessibleDescription(number);
}

// The number before it takes the same room whatever it is, and while it is typed: nothing beside it
// moves away under the mouse.
void TfrmView::setPageTotal(int total) {
  cursor_.setTotal(total);
  const QString digits = QString::number(total);
  ui_->lblPageTotal->setText(digits);
  ui_->lblPageTotal->setAccessibleDescription(digits);
  for (QWidget* label : {ui_->lblPageCurrent, ui_->lblPageOf, ui_->lblPageTotal})
    label->setEnabled(total > 0);
  const int width = kEditFrame + ui_->txtPageCurrentEdit->fontMetrics().horizontalAdvance(QString(
                                     std::max<qsizetype>(kFewestDigits, digits.size()), '0'));
  ui_->lblPageCurrent->setFixedWidth(width);
  ui_->txtPageCurrentEdit->setFixedWidth(width);
  ui_->txtPageCurrentEdit->setMaxLength(std::max(kTypedDigits, static_cast<int>(digits.size())));
}

void TfrmView::cmbPagesChange() {
  cursor_.goTo(cursor_.current());
  showCurrentPage();
  selectInPageList();
  ShowPage();
}

void TfrmView::ShowPage() {
  if (!ready_) return;
  cursor_.setSeveral(state_.showsSeveral());
  updateArea();
  showPageStatus();
  updateMoves();
  zoom_on_view_ = 0;
  if (cursor_.total() == 0) {
    page_control_->ShowMessage(reasonForNoPages());
  } else if (loadPage()) {
    TakePrintMetrics(doc_->Settings.Prn);
    showLoadedPage();
    showFileState();
    lookCloser();
  }
  showZoom();
  describeView();
}

void TfrmView::updateArea() {
  const QSize size = ui_->pScroll->fullArea();
  page_control_->setSurroundings({{size.width(), size.height()}, logicalDpiX(), logicalDpiY()},
                                 ui_->pScroll->barThickness());
}

// The first page has just been read.
bool TfrmView::keepsLoadedPage() {
  const bool first = !std::exchange(firstPageShown_, true);
  return first && page_ != nullptr && page_->Loaded && page_->Number == cursor_.current();
}

bool TfrmView::loadPage() {
  if (keepsLoadedPage()) return true;
  releasePage();
  lastError_.clear();
  QString failure = failureOf([this] {
    page_ = doc_->GetPage(cursor_.current(), 0);
    LoadCodePage(doc_->Settings.Page.BaseCodePage);
  });
  if (failure.isNull() && page_ != nullptr && page_->Loaded) {
    shownError_.clear();
    return true;
  }
  if (failure.isNull()) failure = lastError_;
  releasePage();
  page_control_->ShowMessage(failure);
  status_.setMessage(failure);
  return false;
}

void TfrmView::releasePage() {
  if (page_ != nullptr) page_->ReleaseLines();
  forgetPage();
}

// For a page that the document has taken back.
void TfrmView::forgetPage() {
  page_control_->usePage(nullptr);
  page_ = nullptr;
}

void TfrmView::showLoadedPage() {
  const std::int32_t wanted = wantedZoom();
  if (cursor_.showsSeveral()) return showMulti();
  zoom_on_view_ = wanted;
  page_control_->ShowNormal(page_, zoom_on_view_, state_.ShowUnprintable, state_.PreviewType);
  if (wanted > zoom_on_view_ && state_.PreviewType == kWideView)
    status_.setMessage(qtText(previewTexts().zoomHeld) + QString::number(zoom_on_view_) + "%");
}

void TfrmView::showMulti() {
  const auto show = [this] {
    zoom_on_view_ = wantedZoom();
    return page_control_->ShowMulti(doc_, page_, zoom_on_view_, state_.ShowUnprintable,
                                    cursor_.firstOnView());
  };
  int count = show();
  if (cursor_.makesCurrentFirst(count)) count = show();
  page_control_->MarkPage(cursor_.current());
  cursor_.setInView(count, state_.ZoomID == kNaturalZoomEntry);
  updateMoves();
}

void TfrmView::showPageStatus() {
  status_.setMessage(standingMessage_);
  showPageNumber();
}

void TfrmView::showPageNumber() {
  const QString text = qtText(pageOfText(cursor_.current(), cursor_.total()));
  status_.setPages(text);
}

// For those who hear the window: the description of the control that has the focus, which is told
// anew when it changes.
void TfrmView::describeView() {
  QString text = qtText(pageOfText(cursor_.current(), cursor_.total()));
  if (zoom_on_view_ > 0) text += QString(", %1%").arg(zoom_on_view_);
  if (text != ui_->pScroll->accessibleDescription()) ui_->pScroll->setAccessibleDescription(text);
}

// A report that nobody said would change has changed: its pages may not be where they were.
void TfrmView::showFileState() {
  if (growth_.isFollowing()) return;
  switch (growth_.fileState()) {
    case FileState::asIndexed: return;
    case FileState::changed: return status_.setMessage(qtText(previewTexts().fileChanged));
    case FileState::gone: return status_.setMessage(qtText(previewTexts().fileGone));
  }
}

QString TfrmView::reasonForNoPages() {
  lastError_.clear();
  const QString failure = failureOf([] { VDoc::OpenFile(); });
  if (!lastError_.isEmpty()) return lastError_;
  if (!failure.isNull()) return failure;
  return qtText(growth_.isFollowing() ? previewTexts().waiting : previewTexts().noPages);
}

void TfrmView::fillPageList() {
  pageList_->setPageCount(state_.ListView ? cursor_.total() : 0);
  selectInPageList();
}

void TfrmView::selectInPageList() {
  if (!state_.ListView) return;
  const QModelIndex index = pageList_->index(cursor_.current() - 1);
  ui_->lstPages->setCurrentIndex(index);
  ui_->lstPages->scrollTo(index);
}

// The list always shows the page on view.
void TfrmView::lstPagesClick() {
  const QModelIndexList chosen = ui_->lstPages->selectionModel()->selectedIndexes();
  if (chosen.isEmpty()) return selectInPageList();
  const int number = chosen.front().row() + 1;
  if (number != cursor_.current()) goToPage(number);
}

// A click goes to the page also where it is on view already.
void TfrmView::lstPagesClickAgain(const QModelIndex& line) {
  if (line.row() + 1 == cursor_.current()) ui_->pScroll->scrollToStart();
}

void TfrmView::lblPageCurrentClick() {
  ui_->lblPageCurrent->hide();
  ui_->txtPageCurrentEdit->setText(QString::number(cursor_.current()));
  ui_->txtPageCurrentEdit->show();
  ui_->txtPageCurrentEdit->selectAll();
  ui_->txtPageCurrentEdit->setFocus();
}

// A move starts from the number that was typed.
void TfrmView::leavePageEdit() {
  if (ui_->txtPageCurrentEdit->isHidden()) return;
  ui_->pScroll->setFocus();
  txtPageCurrentEditExit();
}

void TfrmView::txtPageCurrentEditExit() {
  if (ui_->txtPageCurrentEdit->isHidden()) return;
  const int number = ui_->txtPageCurrentEdit->text().toInt();
  ui_->txtPageCurrentEdit->hide();
  ui_->lblPageCurrent->show();
  const bool asked = ui_->txtPageCurrentEdit->isModified() || number != cursor_.current();
  if (number != 0 && asked) goToPage(number);
}

// Ends the typing as if nothing had been typed.
void TfrmView::cancelPageEdit() {
  ui_->txtPageCurrentEdit->setText(QString::number(cursor_.current()));
  leavePageEdit();
}

}  // namespace qor
