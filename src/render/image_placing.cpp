// Stretch modes of images.
#include "render/image_placing.h"

#include "base/units.h"
#include "document/item_kinds.h"

namespace qor {
namespace {

Rect rectAt(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) {
  return {clamped(x), clamped(y), clamped(x + width), clamped(y + height)};
}

Rect naturalSize(const Rect& box, int width, int height) {
  return rectAt(box.left, box.top, twipsFromPixels(width), twipsFromPixels(height));
}

// As large as the box allows with the picture's own proportions, in its middle; a box without a
// lower edge has the height that leads up to the sheet's. Halves are cut one by one, so that odd
// sizes lie where they always did.
Rect fitted(const Rect& box, int width, int height) {
  const double pictureRatio = double(width) / height;
  const double boxRatio = static_cast<double>(box.width()) / static_cast<double>(box.height());
  if (boxRatio <= pictureRatio) {
    const std::int32_t h = truncated(height * (static_cast<double>(box.width()) / width));
    return rectAt(box.left, box.height() / 2 + box.top - h / 2, box.width(), h);
  }
  const std::int32_t w = truncated(width * (static_cast<double>(box.height()) / height));
  return rectAt(box.width() / 2 + box.left - w / 2, box.top, w, box.height());
}

}  // namespace

std::optional<Rect> placeImage(std::int32_t stretch, const Rect& box, int width, int height) {
  switch (stretch) {
    case kNaturalStretch: return naturalSize(box, width, height);
    case kFillStretch: return box;
    case kFitStretch: return fitted(box, width, height);
    case kTwipPerPixelStretch: return Rect{0, 0, width, height};
    default: return std::nullopt;
  }
}

}  // namespace qor
