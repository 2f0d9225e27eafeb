// Zooms of the window.
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

#include "document/vdoc.h"
#include "preview/page_scroll.h"
#include "preview/tfrm_view.h"
#include "preview/vpage.h"
#include "settings/printers.h"
#include "ui_tfrm_view.h"

namespace qor {

void TfrmView::cmbZoomChange() {
  state_.ZoomID = ui_->cmbZoom->currentIndex();
  pages_on_view_ = 1;
  ui_->pScroll->scrollToStart();
  ShowPage();
}

void TfrmView::mnuZoomListClick(int tag) {
  ui_->cmbZoom->setCurrentIndex(tag);
  cmbZoomChange();
}

void TfrmView::cmdView_ZoomInClick() {
  zoomFromView(1, ui_->pScroll->middle());
}

void TfrmView::cmdView_ZoomOutClick() {
  zoomFromView(-1, ui_->pScroll->middle());
}

// A step from the percentage that is seen, whatever was chosen.
void TfrmView::zoomFromView(int direction, const QPoint& anchor) {
  const int entry = direction > 0 ? zoomEntryAbove(zoom_on_view_) : zoomEntryBelow(zoom_on_view_);
  if (entry != kNoZoomEntry) zoomAround(anchor, entry);
}

// A step in the list, which goes on to the zooms that fit.
void TfrmView::zoomInList(int direction) {
  const int entry =
      direction > 0 ? largerZoomEntry(state_.ZoomID) : smallerZoomEntry(state_.ZoomID);
  if (entry != state_.ZoomID) mnuZoomListClick(entry);
}

// What is seen at the anchor, a place of the scrolling area, stays there.
void TfrmView::zoomAround(const QPoint& anchor, int entry) {
  const QPointF seen = ui_->pScroll->placeInControl(anchor);
  const std::int32_t before = zoom_on_view_;
  const bool one = page_control_->showsOnePage();
  state_.ZoomID = entry;
  ui_->cmbZoom->setCurrentIndex(entry);
  pages_on_view_ = 1;
  ShowPage();
  if (one && page_control_->showsOnePage() && before > 0) {
    ui_->pScroll->bring(seen * zoom_on_view_ / before, anchor);
  } else {
    ui_->pScroll->scrollToStart();
  }
}

void TfrmView::ShowPageScale() {
  if (ui_->txtZoom->text().isEmpty()) ui_->txtZoom->setText("100");
  const int percent = std::max(1, ui_->txtZoom->text().toInt());
  updateArea();
  if (doc_ == nullptr || doc_->PageCount == 0) return;
  if ((page_ == nullptr || !page_->Loaded) && !loadPage()) return;
  TakePrintMetrics(doc_->Settings.Prn);
  page_control_->ShowScaled(page_, percent, state_.ShowUnprintable);
}

void TfrmView::UpDown1Click() {
  pages_on_view_ = 1;
  ui_->txtZoom->setText(QString::number(ui_->UpDown1->value()));
  ui_->pScroll->scrollToStart();
  ShowPageScale();
}

}  // namespace qor
