// Where the picture of an image item lies.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/canvas/canvas.h"

namespace qor {

enum ImageStretchMode { kNatural = 0, kFillBox, kFitBox, kTwipPerPixel };

// The rectangle, in twips, of a picture of width * height pixels for the item's box and stretch
// mode; nothing for a mode that doesn't exist. Without a width or a height nothing shows.
std::optional<Rect> placeImage(std::int32_t mode, const Rect& box, int width, int height);

}  // namespace qor
