// What of a page's text lies beyond its sheet.
#pragma once

#include <cstdint>

#include "platform/canvas/canvas.h"

namespace qor {

class VDocPage;

struct PageOverflow {
  std::int32_t lines = 0;    // that the lower edge cuts or that lie below it
  std::int32_t columns = 0;  // characters of the widest line beyond the right edge

  bool operator==(const PageOverflow&) const = default;
};

// Walks the loaded page as DrawPage does and paints nothing. `sheet` is what can be seen, in twips.
// Blanks at the ends of lines don't count, nor do turned texts.
PageOverflow overflowOf(VDocPage& page, const Rect& sheet);

}  // namespace qor
