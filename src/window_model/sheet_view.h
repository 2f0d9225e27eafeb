// How the sheet of a page lies on the screen, at a zoom and in a view.
#pragma once

#include <cstdint>

#include "document/vset.h"

namespace qor {

// The area that pages are shown in, in pixels, and its resolution.
struct ScreenArea {
  Extent client;
  std::int32_t dpi_x = 96;
  std::int32_t dpi_y = 96;

  bool operator==(const ScreenArea& other) const {
    return client.Width == other.client.Width && client.Height == other.client.Height &&
           dpi_x == other.dpi_x && dpi_y == other.dpi_y;
  }
};

// The sheet with a gap around it, centred where there is room. A zoom that fits the sheet to the
// area is replaced by the percentage that came of it, at least 1; 0 counts as 100.
VSetScr normalSheet(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                    std::int32_t& zoom);

// No sheet: the area that a page needs, at least the paper. `content` is what MeasurePage gave, in
// pixels at 100 percent. Zooms that fit count as 100.
VSetScr wideSheet(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                  const Extent& content, std::int32_t& zoom);

// The sheet shrunk to `percent`, 1 or more, under a page that keeps its size, to show how much of
// it would fit.
VSetScr scaledSheet(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                    std::int32_t percent);

// Where an area has bars for scrolling.
struct ScrollBars {
  bool right = false;
  bool bottom = false;
};

// Those that appear where what is shown, with its gaps, is larger than the area: one bar
// takes room that the other direction may then lack. They are `thickness` pixels thick.
ScrollBars barsFor(const ScreenArea& area, const Extent& shown, std::int32_t thickness);

// What these bars leave of the area.
ScreenArea areaBesideBars(const ScreenArea& area, const Extent& shown, std::int32_t thickness);

}  // namespace qor
