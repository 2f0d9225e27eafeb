// Pictures brought to at most 256 colours.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/pictures/picture.h"

namespace qor {

struct IndexedPicture {
  std::vector<std::uint32_t> palette;  // 0x00RRGGBB
  std::vector<std::uint8_t> indices;   // row by row from the top
};

// Up to 256 colours stay exact. Of more, the commonest stay exact (the paper of a page, its fields
// and its text), and the others become the nearest of what is left of the palette.
IndexedPicture indexed(const PixelView& pixels);

}  // namespace qor
