// Zooms of the window.
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "settings/printers.h"
#include "ui_tfrm_view.h"
#include "window_model/zoom_fit.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {

void TfrmView::cmbZoomChange() {
  state_.ZoomID = ui_->cmbZoom->currentIndex();
  fit_ = 0;
  cursor_.countAnew();
  ui_->pScroll->scrollToStart();
  ShowPage();
  keepState();
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
  if (zoom_on_view_ == 0) return zoomInList(direction);
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
void TfrmView::zoomAround(const QPoint& anchor, int entry, std::int32_t fit) {
  const QPointF seen = ui_->pScroll->placeInControl(anchor);
  const std::int32_t before = zoom_on_view_;
  const bool one = page_control_->showsOnePage();
  state_.ZoomID = entry;
  fit_ = fit;
  ui_->cmbZoom->setCurrentIndex(entry);
  cursor_.countAnew();
  ShowPage();
  if (one && page_control_->showsOnePage() && before > 0) {
    ui_->pScroll->bring(seen * zoom_on_view_ / before, anchor);
  } else {
    ui_->pScroll->scrollToStart();
  }
  keepState();
}

void TfrmView::mnuActualSizeClick() {
  zoomAround(ui_->pScroll->middle(), kNaturalZoomEntry);
}

// The fits are stored as the entries that come nearest to them.
void TfrmView::mnuFitWidthClick() {
  zoomAround(ui_->pScroll->middle(), zoomEntryOf(kFitWidth), kWholeWidth);
}

void TfrmView::mnuFitPageClick() {
  zoomAround(ui_->pScroll->middle(), zoomEntryOf(kFitHeight), kWholePage);
}

std::int32_t TfrmView::wantedZoom() const {
  return fit_ != 0 ? fit_ : zoomPercent(state_.ZoomID);
}

// The box tells what is seen where its entry alone doesn't.
void TfrmView::showZoom() {
  const QString percent = QString("%1%").arg(zoom_on_view_ > 0 ? zoom_on_view_ : kNaturalZoom);
  for (int entry = 0; entry < ui_->cmbZoom->count(); ++entry) {
    QString text = qtText(kZoomList[static_cast<std::size_t>(entry)].text);
    const bool differs = zoom_on_view_ > 0 && zoomPercent(entry) != zoom_on_view_;
    if (entry == state_.ZoomID && differs) text += QString(" (%1)").arg(percent);
    if (ui_->cmbZoom->itemText(entry) != text) ui_->cmbZoom->setItemText(entry, text);
  }
  ui_->cmbZoom->setPlaceholderText(percent);
  // It stands for what is on view, and not for something that is missing.
  QPalette colors = ui_->pTools->palette();
  colors.setColor(QPalette::PlaceholderText, colors.color(QPalette::ButtonText));
  ui_->cmbZoom->setPalette(colors);
}

void TfrmView::ShowPageScale() {
  if (ui_->txtZoom->text().isEmpty()) ui_->txtZoom->setText("100");
  const int percent = std::max(1, ui_->txtZoom->text().toInt());
  updateArea();
  if (cursor_.total() == 0) return;
  if ((page_ == nullptr || !page_->Loaded) && !loadPage()) return;
  TakePrintMetrics(doc_->Settings.Prn);
  page_control_->ShowScaled(page_, percent, state_.ShowUnprintable);
}

void TfrmView::UpDown1Click() {
  cursor_.countAnew();
  ui_->txtZoom->setText(QString::number(ui_->UpDown1->value()));
  ui_->pScroll->scrollToStart();
  ShowPageScale();
}

}  // namespace qor
