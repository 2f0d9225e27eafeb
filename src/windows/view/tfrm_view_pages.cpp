// Showing pages.
#include <QLineEdit>
#include <QListView>
#include <QTimer>
#include <algorithm>

#include "base/app_options.h"
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

int TfrmView::currentPage() const {
  return ui_->lblPageCurrent->text().toInt();
}

void TfrmView::setCurrentPage(int number) {
  ui_->lblPageCurrent->setText(QString::number(number));
  ui_->lblPageCurrent->setAccessibleDescription(QString::number(number));
}

// The number before it takes the same room whatever it is, and while it is typed: nothing beside it
// moves away under the mouse.
void TfrmView::setPageTotal(int total) {
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
  const int total = doc_ == nullptr ? 0 : doc_->PageCount;
  setCurrentPage(std::clamp(currentPage(), std::min(1, total), total));
  selectInPageList();
  first_on_view_ = currentPage();
  ShowPage();
}

void TfrmView::ShowPage() {
  if (!ready_) return;
  updateArea();
  showPageStatus();
  updateMoves();
  zoom_on_view_ = 0;
  if (doc_ == nullptr || doc_->PageCount == 0) {
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
  return first && page_ != nullptr && page_->Loaded && page_->Number == currentPage();
}

bool TfrmView::loadPage() {
  if (keepsLoadedPage()) return true;
  releasePage();
  lastError_.clear();
  QString failure = failureOf([this] {
    page_ = doc_->GetPage(currentPage());
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
  if (state_.showsSeveral()) return showMulti();
  zoom_on_view_ = wanted;
  page_control_->ShowNormal(page_, zoom_on_view_, state_.ShowUnprintable, state_.PreviewType);
  if (wanted > zoom_on_view_ && state_.PreviewType == kWideView)
    status_.setMessage(qtText(previewTexts().zoomHeld) + QString::number(zoom_on_view_) + "%");
}

void TfrmView::showMulti() {
  const auto show = [this] {
    zoom_on_view_ = wantedZoom();
    return page_control_->ShowMulti(doc_, page_, zoom_on_view_, state_.ShowUnprintable,
                                    first_on_view_);
  };
  int count = show();
  // Where there is room for fewer than before, the current page comes first.
  if (count > 0 && currentPage() >= first_on_view_ + count) {
    first_on_view_ = currentPage();
    count = show();
  }
  page_control_->MarkPage(currentPage());
  if (state_.ZoomID == kNaturalZoomEntry || count > pages_on_view_) pages_on_view_ = count;
  updateMoves();
}

void TfrmView::showPageStatus() {
  status_.setMessage(standingMessage_);
  showPageNumber();
}

void TfrmView::showPageNumber() {
  const QString text = qtText(pageOfText(currentPage(), doc_ == nullptr ? 0 : doc_->PageCount));
  status_.setPages(text);
}

// For those who hear the window: the description of the control that has the focus, which is told
// anew when it changes.
void TfrmView::describeView() {
  QString text = qtText(pageOfText(currentPage(), doc_ == nullptr ? 0 : doc_->PageCount));
  if (zoom_on_view_ > 0) text += QString(", %1%").arg(zoom_on_view_);
  if (text != ui_->pScroll->accessibleDescription()) ui_->pScroll->setAccessibleDescription(text);
}

// A report that nobody said would change has changed: its pages may not be where they were.
void TfrmView::showFileState() {
  if (TimerDynamicBlinc_->isActive()) return;
  const auto now = fileStamp(AppOptions.FileName);
  if (now != stamp_)
    status_.setMessage(qtText(now ? previewTexts().fileChanged : previewTexts().fileGone));
}

QString TfrmView::reasonForNoPages() {
  lastError_.clear();
  const QString failure = failureOf([] { VDoc::OpenFile(); });
  if (!lastError_.isEmpty()) return lastError_;
  if (!failure.isNull()) return failure;
  return qtText(TimerDynamicBlinc_->isActive() ? previewTexts().waiting : previewTexts().noPages);
}

void TfrmView::fillPageList() {
  pageList_->setPageCount(state_.ListView && doc_ != nullptr ? doc_->PageCount : 0);
  selectInPageList();
}

void TfrmView::selectInPageList() {
  if (!state_.ListView) return;
  const QModelIndex index = pageList_->index(currentPage() - 1);
  ui_->lstPages->setCurrentIndex(index);
  ui_->lstPages->scrollTo(index);
}

// The list always shows the page on view.
void TfrmView::lstPagesClick() {
  const QModelIndexList chosen = ui_->lstPages->selectionModel()->selectedIndexes();
  if (chosen.isEmpty()) return selectInPageList();
  const int number = chosen.front().row() + 1;
  if (number != currentPage()) goToPage(number);
}

// A click goes to the page also where it is on view already.
void TfrmView::lstPagesClickAgain(const QModelIndex& line) {
  if (line.row() + 1 == currentPage()) ui_->pScroll->scrollToStart();
}

void TfrmView::lblPageCurrentClick() {
  ui_->lblPageCurrent->hide();
  ui_->txtPageCurrentEdit->setText(ui_->lblPageCurrent->text());
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
  const bool asked = ui_->txtPageCurrentEdit->isModified() || number != currentPage();
  if (number != 0 && asked) goToPage(number);
}

// Ends the typing as if nothing had been typed.
void TfrmView::cancelPageEdit() {
  ui_->txtPageCurrentEdit->setText(ui_->lblPageCurrent->text());
  leavePageEdit();
}

}  // namespace qor
