// Where the twips of a page stand in its view, and what a pixel of the view is in twips. Twips
// count from the corner of what the printer reaches, as items of pages do; pixels from the corner
// of the view. A dot of the screen may be a fraction of a pixel, and a place a fraction of both.
#pragma once

#include "base/spot.h"
#include "window_model/page_view.h"

namespace qor {

class PageMapping {
 public:
  // For a screen of that many dots a pixel.
  PageMapping(const PageView& view, double dotsPerPixel);

  Spot toPixels(const Spot& twips) const;

  // The corner of the page where the zoom is so small that all of it is a single dot.
  Spot toTwips(const Spot& pixels) const;

  // The same for a canvas whose first dot is the one at `corner`, dots from the view's.
  Mapping onCanvas(const Point& corner) const;

  // What the printer reaches, dots from the corner of the view.
  const Rect& printable() const { return printable_; }

 private:
  double dots_per_pixel_;
  double dpi_x_;  // dots for an inch of the page
  double dpi_y_;
  Rect printable_;
};

}  // namespace qor
