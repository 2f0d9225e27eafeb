// The pen that a shape is drawn with.
#pragma once

#include "platform/canvas/canvas.h"

namespace qor {

class VData_Shape;

Pen penOf(const VData_Shape& shape);

}  // namespace qor
