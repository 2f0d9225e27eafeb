// The zoom of the window: what was chosen, what is seen, and the commands that change it.
#pragma once

#include <QObject>
#include <QPoint>
#include <cstdint>

#include "windows/view/zoom_box.h"

namespace qor {

struct ViewDesk;

class PageZoom : public QObject {
  Q_OBJECT

 public:
  explicit PageZoom(ViewDesk& desk);

  // Selects what the state says.
  void applyState();

  // The percentage that was chosen, or what stands in its place: see zoom_list.h and zoom_fit.h.
  std::int32_t wanted() const;

  // The percentage that is seen, 0 where no page is. Whoever shows a page sets it and then tells
  // it.
  std::int32_t onView() const { return on_view_; }
  void setOnView(std::int32_t percent) { on_view_ = percent; }
  void tellOnView() { box_.tell(on_view_); }

  void cmbZoomChange();
  void cmdView_ZoomInClick();
  void cmdView_ZoomOutClick();
  void mnuActualSizeClick();
  void mnuFitWidthClick();
  void mnuFitPageClick();

  // Chooses an entry of the list of zooms.
  void mnuZoomListClick(int entry);

  // A step in the list, which goes on to the zooms that fit: 1 larger, -1 smaller.
  void zoomInList(int direction);

  // A step from the percentage that is seen, whatever was chosen. What is seen at the anchor, a
  // spot of the scrolling area, stays there.
  void zoomFromView(int direction, const QPoint& anchor);

 signals:
  void pageWanted();    // the page is to be shown, at once
  void stateChanged();  // and what was chosen is to be remembered

 private:
  void zoomAround(const QPoint& anchor, int entry, std::int32_t fit = 0);
  QPoint middle() const;

  ViewDesk& desk_;
  ZoomBox box_;
  std::int32_t fit_ = 0;  // kWholeWidth or kWholePage, which no entry of the list stands for
  std::int32_t on_view_ = 0;
};

}  // namespace qor
