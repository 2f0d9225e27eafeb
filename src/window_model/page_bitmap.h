// The dots of a view, drawn once and kept: all of them, or, where the view is very large, those
// around what is seen, so that neither memory nor time grow with the zoom.
#pragma once

#include <functional>
#include <memory>

#include "platform/canvas/bitmap_canvas.h"
#include "window_model/page_view.h"

namespace qor {

class PageBitmap {
 public:
  using Paint = std::function<void(Canvas&, const ViewPart&)>;

  // Starts anew with a view of that many pixels, each of `dotsPerPixel` dots, on a display of `dpi`
  // dots per inch. Nothing is drawn yet.
  void start(const Extent& pixels, double dotsPerPixel, int dpi, Paint paint);

  // Draws unless the pixels `seen` of the view are there already. Throws PictureError and what the
  // paint throws; nothing is then kept.
  void cover(const Rect& seen);

  // What was drawn, and where its corner stands in the view, in dots. Empty before the first
  // drawing.
  PixelView pixels() { return drawn_ ? bitmap_->pixels() : PixelView(); }
  Point corner() const { return {part_.left, part_.top}; }
  double dotsPerPixel() const { return dots_per_pixel_; }

 private:
  Rect partAround(const Rect& seen) const;
  void prepareBitmap(const Rect& part);

  Extent size_;  // of the view, dots
  double dots_per_pixel_ = 1;
  int dpi_ = 96;
  Paint paint_;
  std::unique_ptr<BitmapCanvas> bitmap_;
  Rect part_;  // of the view, dots
  bool drawn_ = false;
};

}  // namespace qor
