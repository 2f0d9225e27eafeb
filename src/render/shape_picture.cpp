// Pictures of shapes.
#include "render/shape_picture.h"

#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "base/units.h"
#include "document/side_picture.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/canvas/canvas.h"

namespace qor {
namespace {

std::string pictureName(const VData_Shape& shape) {
  return sideFileStem(AppOptions.FileName) + "_shape_" +
         std::to_string(roundedMillimetres(shape.Left)) + "_" +
         std::to_string(roundedMillimetres(shape.Top)) + ".jpeg";
}

}  // namespace

void saveShapePicture(VData_Shape& shape, int dpi) {
  const Rect rect = {shape.Left, shape.Top, shape.Right, shape.Bottom};
  try {
    saveSidePicture(rect, dpi, {pictureName(shape)},
                    [&shape](Canvas& canvas) { shape.Draw(canvas); });
  } catch (const PictureError&) {
    // What is drawn needs no picture.
  }
}

}  // namespace qor
