// Showing pages.
#include "windows/view/page_show.h"

#include "document/code_page.h"
#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "settings/printers.h"
#include "window_model/preview_texts.h"
#include "windows/failure_text.h"
#include "windows/view/error_box.h"
#include "windows/view/page_zoom.h"
#include "windows/view/view_desk.h"

namespace qor {

PageShow::PageShow(ViewDesk& desk, PageZoom& zoom, ErrorBox& errors)
    : desk_(desk), zoom_(zoom), errors_(errors) {
}

void PageShow::setDocument(VDoc* doc, VDocPage* page) {
  doc_ = doc;
  emit letGo();
  page_ = page;
  first_page_shown_ = false;
  countPages();
  if (page == nullptr) desk_.page_control->usePage(nullptr);
}

void PageShow::countPages() {
  desk_.cursor.setTotal(doc_ == nullptr ? 0 : doc_->PageCount);
}

VDocPage* PageShow::loadedPage() const {
  return page_ != nullptr && page_->Loaded ? page_ : nullptr;
}

void PageShow::ShowPage() {
  if (!started_) return;
  wanted_ = desk_.busy;
  if (wanted_) return;
  countPages();
  desk_.cursor.setSeveral(desk_.state.showsSeveral());
  updateArea();
  emit aboutToShow();
  zoom_.setOnView(0);
  if (desk_.cursor.total() == 0) {
    desk_.page_control->ShowMessage(reasonForNoPages());
  } else if (load()) {
    TakePrintMetrics(doc_->Settings.Prn);
    showLoaded();
    emit pageShown();
  }
  zoom_.tellOnView();
  emit shown();
}

void PageShow::updateArea() {
  const PageScroll& area = *desk_.ui.pScroll;
  const QSize size = area.fullArea();
  desk_.page_control->setSurroundings(
      {{size.width(), size.height()}, area.logicalDpiX(), area.logicalDpiY()}, area.barThickness());
}

// The first page has just been read.
bool PageShow::keepsLoaded() {
  const bool first = !std::exchange(first_page_shown_, true);
  return first && loadedPage() != nullptr && page_->Number == desk_.cursor.current();
}

bool PageShow::load() {
  if (keepsLoaded()) return true;
  release();
  errors_.forgetLast();
  QString failure = failureOf([this] {
    page_ = doc_->GetPage(desk_.cursor.current());
    LoadCodePage(doc_->Settings.Page.BaseCodePage);
  });
  if (failure.isNull() && loadedPage() != nullptr) {
    errors_.allowAgain();
    return true;
  }
  if (failure.isNull()) failure = errors_.last();
  release();
  desk_.page_control->ShowMessage(failure);
  desk_.status.setMessage(failure);
  return false;
}

void PageShow::release() {
  VDocPage* page = page_;
  forget();
  if (page != nullptr) page->ReleaseLines();
}

void PageShow::forget() {
  emit letGo();
  desk_.page_control->usePage(nullptr);
  page_ = nullptr;
}

void PageShow::resume() {
  if (wanted_) return ShowPage();
  countPages();
  if (desk_.cursor.total() > 0 && load()) desk_.page_control->usePage(page_);
}

void PageShow::showLoaded() {
  desk_.cursor.showsSeveral() ? showSeveral() : showOne();
  if (desk_.firstPageWidth == 0) desk_.firstPageWidth = doc_->Settings.Scr.view_width;
}

void PageShow::showOne() {
  const ViewState& state = desk_.state;
  const std::int32_t wanted = zoom_.wanted();
  std::int32_t percent = wanted;
  desk_.page_control->ShowNormal(page_, percent, state.ShowUnprintable, state.PreviewType);
  zoom_.setOnView(percent);
  if (wanted > percent && state.PreviewType == kWideView)
    desk_.status.setMessage(qtText(previewTexts().zoomHeld) + QString::number(percent) + "%");
}

void PageShow::showSeveral() {
  PageCursor& cursor = desk_.cursor;
  const auto show = [&] {
    std::int32_t percent = zoom_.wanted();
    const int count = desk_.page_control->ShowMulti(
        doc_, page_, percent, desk_.state.ShowUnprintable, cursor.firstOnView());
    zoom_.setOnView(percent);
    return count;
  };
  int count = show();
  if (cursor.makesCurrentFirst(count)) count = show();
  desk_.page_control->MarkPage(cursor.current());
  cursor.setInView(count, desk_.state.ZoomID == kNaturalZoomEntry);
  emit roomCounted();
}

QString PageShow::reasonForNoPages() {
  errors_.forgetLast();
  QString failure = failureOf([] { VDoc::OpenFile(); });
  if (!errors_.last().isEmpty()) return errors_.last();
  if (!failure.isNull()) return failure;
  const PreviewTexts& texts = previewTexts();
  return qtText(desk_.growth.isFollowing() ? texts.waiting : texts.noPages);
}

void PageShow::showScaled(int percent) {
  updateArea();
  if (desk_.cursor.total() == 0) return;
  if (loadedPage() == nullptr && !load()) return;
  TakePrintMetrics(doc_->Settings.Prn);
  desk_.page_control->ShowScaled(page_, percent, desk_.state.ShowUnprintable);
}

}  // namespace qor
