// Pictures of shapes, which exporters that can't draw find beside the report.
#pragma once

namespace qor {

class VData_Shape;

// Writes the shape as "<report>_shape_<x>_<y>.jpeg", x and y in whole millimetres, with the dots of
// a device of this resolution. Only what lies inside a bitmap of the shape's size, counted from the
// page's corner, is kept. A picture that can't be made or written is left out.
void saveShapePicture(VData_Shape& shape, int dpi);

}  // namespace qor
