// Where the picture of an image item lies.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/canvas/canvas.h"

namespace qor {

// The rectangle, in twips, of a picture of width * height pixels for the item's box and
// StretchKind; nothing for a kind that doesn't exist. Without a width or a height nothing shows.
std::optional<Rect> placeImage(std::int32_t stretch, const Rect& box, int width, int height);

}  // namespace qor
