// Zooming.
#include "windows/view/page_zoom.h"

#include "window_model/zoom_fit.h"
#include "windows/view/view_desk.h"

namespace qor {

PageZoom::PageZoom(ViewDesk& desk) : desk_(desk), box_(*desk.ui.cmbZoom, *desk.ui.pTools) {
}

void PageZoom::applyState() {
  box_.select(desk_.state.ZoomID);
}

std::int32_t PageZoom::wanted() const {
  return fit_ != 0 ? fit_ : zoomPercent(desk_.state.ZoomID);
}

void PageZoom::cmbZoomChange() {
  desk_.state.ZoomID = box_.entry();
  fit_ = 0;
  desk_.cursor.countAnew();
  desk_.ui.pScroll->scrollToStart();
  emit pageWanted();
  emit stateChanged();
}

void PageZoom::mnuZoomListClick(int entry) {
  box_.select(entry);
  cmbZoomChange();
}

QPoint PageZoom::middle() const {
  return desk_.ui.pScroll->middle();
}

void PageZoom::cmdView_ZoomInClick() {
  zoomFromView(1, middle());
}

void PageZoom::cmdView_ZoomOutClick() {
  zoomFromView(-1, middle());
}

void PageZoom::zoomFromView(int direction, const QPoint& anchor) {
  if (on_view_ == 0) return zoomInList(direction);
  const int entry = direction > 0 ? zoomEntryAbove(on_view_) : zoomEntryBelow(on_view_);
  if (entry != kNoZoomEntry) zoomAround(anchor, entry);
}

void PageZoom::zoomInList(int direction) {
  const int before = desk_.state.ZoomID;
  const int entry = direction > 0 ? largerZoomEntry(before) : smallerZoomEntry(before);
  if (entry != before) mnuZoomListClick(entry);
}

void PageZoom::zoomAround(const QPoint& anchor, int entry, std::int32_t fit) {
  PageScroll& area = *desk_.ui.pScroll;
  const QPointF seen = area.spotInControl(anchor);
  const std::int32_t before = on_view_;
  const bool one = desk_.page_control->showsOnePage();
  desk_.state.ZoomID = entry;
  fit_ = fit;
  box_.select(entry);
  desk_.cursor.countAnew();
  emit pageWanted();
  if (one && desk_.page_control->showsOnePage() && before > 0) {
    area.bring(seen * on_view_ / before, anchor);
  } else {
    area.scrollToStart();
  }
  emit stateChanged();
}

void PageZoom::mnuActualSizeClick() {
  zoomAround(middle(), kNaturalZoomEntry);
}

// The fits are stored as the entries that come nearest to them.
void PageZoom::mnuFitWidthClick() {
  zoomAround(middle(), zoomEntryOf(kFitWidth), kWholeWidth);
}

void PageZoom::mnuFitPageClick() {
  zoomAround(middle(), zoomEntryOf(kFitHeight), kWholePage);
}

}  // namespace qor
