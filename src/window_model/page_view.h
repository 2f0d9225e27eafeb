// Painting a page as it stands on the screen: the sheet with its shadow and margins, and the page
// on it.
#pragma once

#include <cstdint>

#include "document/vset.h"
#include "platform/canvas/canvas.h"

namespace qor {

class VDocPage;

// How a page is shown.
struct PageView {
  VSetScr screen;
  std::int32_t zoom = 100;       // percent of the page on the sheet
  bool show_unprintable = true;  // margins and the area that the printer can't reach
  bool wide = false;             // neither sheet nor clip
  Color panel = 0xC0C0C0;        // around the sheet
};

// The part of a view that a bitmap holds: its corner in dots, and how many dots a pixel is.
struct ViewPart {
  Point corner;
  double dotsPerPixel = 1;
};

// The dot where an edge at this pixel falls.
std::int32_t inDots(std::int32_t pixels, double dotsPerPixel);

// Fills the canvas with the sheet and draws the loaded page on it. Throws what LoadCodePage throws.
void paintPage(VDocPage& page, Canvas& canvas, const PageView& view, const ViewPart& part);

// The same without a page.
void DrawSheet(Canvas& canvas, const PageView& view, const ViewPart& part);

// What the content of the loaded page takes, in pixels at 100 percent of a display of `dpi` dots
// per inch.
Extent contentOf(VDocPage& page, Point dpi);

}  // namespace qor
