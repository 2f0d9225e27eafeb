// Several pages at once: how many there is room for, and where each stands.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "document/vset.h"
#include "platform/canvas/canvas.h"

namespace qor {

struct PagePlace {
  std::int32_t number;  // of the page, 1 for the first
  Point corner;         // of its cell, pixels from the corner of the area
};

// Pages from `first` to `total` laid out in rows on an area of `client` pixels, each taking a cell
// of that many pixels with the gaps of its sheet. None at all where there is room for one only: it
// is then shown as a single page. Nothing where there is no such page.
std::optional<std::vector<PagePlace>> layOutPages(const Extent& cell, const Extent& client,
                                                  std::int32_t first, std::int32_t total);

// Where the number of the page at places[index] stands on a board of that size: below its sheet or
// at its right where there is room, else in the corner of the sheet. All sheets and the label take
// `sheet` and `label` pixels.
Point numberCorner(const std::vector<PagePlace>& places, std::size_t index, const Extent& sheet,
                   const Extent& board, const Extent& label);

}  // namespace qor
