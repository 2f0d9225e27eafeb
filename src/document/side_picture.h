// Pictures of items beside the report, for exporters that can't draw.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qor {

class Canvas;
struct Rect;
struct VSetPage;

// Draws a bitmap of the rectangle's size, with the dots of a device of this resolution and never
// longer than a side of the sheet, and writes it as JPEG under each name. Logical (0, 0) is the
// bitmap's corner. A picture that can't be made or written costs nothing but itself: the first one
// is told on standard error.
void saveSidePicture(const Rect& rect, int dpi, const VSetPage& page,
                     const std::vector<std::string>& names,
                     const std::function<void(Canvas&)>& draw);

}  // namespace qor
