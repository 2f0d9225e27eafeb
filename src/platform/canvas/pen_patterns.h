// Dashes and hatches, as the screens that their styles come from show them.
#pragma once

#include <span>
#include <vector>

#include "platform/canvas/canvas.h"

namespace qor {

// On and off lengths of a pen; none for solid lines. `width` in dots of a device with `dpi` dots
// per inch.
std::vector<double> dashesOf(PenStyle style, double width, double dpi);

// The lines of one tile of a hatch, which repeats from the corner of the page and not from that of
// a shape, so that those of neighbours join. They go on in the neighbouring tiles, so they start
// outside of it.
struct HatchTile {
  struct Line {
    double x1, y1, x2, y2;
  };

  int side = 0;          // dots
  double lineWidth = 0;  // dots
  std::vector<Line> lines;
};

HatchTile hatchTile(BrushStyle style, double dpi);

}  // namespace qor
