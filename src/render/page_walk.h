// Drawing pages. Every target (screen, paper, picture) sets a twip mapping and calls DrawPage.
#pragma once

#include <cstdint>

namespace qor {

class Canvas;
class VDocPage;

// Draws the page. Logical (0, 0) of the canvas must be the corner of the printable area.
void DrawPage(VDocPage& page, Canvas& canvas);

// Walks the page as DrawPage does and gives the extent of its content, in dots of the canvas.
void MeasurePage(VDocPage& page, Canvas& canvas, std::int32_t& width, std::int32_t& height);

// The size in twips of one cell of the page's text grid, in which negative margins are counted.
void LineCellMetrics(const VDocPage& page, Canvas& canvas, std::int32_t& row_height,
                     std::int32_t& char_width);

}  // namespace qor
