// Dots of views.
#include "window_model/page_bitmap.h"

#include <algorithm>
#include <utility>

#include "base/units.h"

namespace qor {
namespace {

// A view of more dots is kept in parts. A page of A4 stays below up to 150 percent; a larger one
// would be drawn mostly unseen on the usual screen.
constexpr std::int64_t kWholeView = 2'500'000;

// A part goes this much of what is seen beyond it, at each end.
constexpr std::int64_t kBeyondDivisor = 8;

struct Span {
  std::int32_t start;
  std::int32_t end;
};

// The stretch from `start` to `end` of a length, grown at both ends.
Span grown(std::int32_t start, std::int32_t end, std::int32_t length) {
  const std::int64_t beyond = (std::int64_t{end} - start) / kBeyondDivisor;
  return {clamped(std::max<std::int64_t>(0, start - beyond)),
          clamped(std::min<std::int64_t>(length, end + beyond))};
}

bool holds(const Rect& outer, const Rect& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

}  // namespace

void PageBitmap::start(const Extent& pixels, double dotsPerPixel, int dpi, Paint paint) {
  size_ = {inDots(pixels.Width, dotsPerPixel), inDots(pixels.Height, dotsPerPixel)};
  dots_per_pixel_ = dotsPerPixel;
  dpi_ = dpi;
  paint_ = std::move(paint);
  drawn_ = false;
}

Rect PageBitmap::partAround(const Rect& seen) const {
  if (std::int64_t{size_.Width} * size_.Height <= kWholeView) {
    return {0, 0, size_.Width, size_.Height};
  }
  const Span columns = grown(seen.left, seen.right, size_.Width);
  const Span rows = grown(seen.top, seen.bottom, size_.Height);
  return {columns.start, rows.start, columns.end, rows.end};
}

// The memory of the last drawing serves again where it has the right size.
void PageBitmap::prepareBitmap(const Rect& part) {
  const auto width = static_cast<int>(part.width());
  const auto height = static_cast<int>(part.height());
  if (bitmap_) {
    const PixelView old = bitmap_->pixels();
    if (old.width == width && old.height == height) return;
    bitmap_.reset();
  }
  bitmap_ = std::make_unique<BitmapCanvas>(width, height, dpi_);
}

void PageBitmap::cover(const Rect& seen) {
  const Rect wanted = {std::max(0, inDots(seen.left, dots_per_pixel_) - 1),
                       std::max(0, inDots(seen.top, dots_per_pixel_) - 1),
                       std::min(size_.Width, inDots(seen.right, dots_per_pixel_) + 1),
                       std::min(size_.Height, inDots(seen.bottom, dots_per_pixel_) + 1)};
  if (wanted.width() <= 0 || wanted.height() <= 0 || (drawn_ && holds(part_, wanted))) return;
  drawn_ = false;
  const Rect part = partAround(wanted);
  prepareBitmap(part);
  paint_(bitmap_->canvas(), {{part.left, part.top}, dots_per_pixel_});
  part_ = part;
  drawn_ = true;
}

}  // namespace qor
