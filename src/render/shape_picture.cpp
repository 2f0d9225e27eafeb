// Pictures of shapes.
#include "render/shape_picture.h"

#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "base/units.h"
#include "document/vdata.h"
#include "platform/bitmap_canvas.h"
#include "platform/messages.h"
#include "platform/output_file.h"

namespace qor {
namespace {

std::string pictureName(const VData_Shape& shape) {
  return std::string(sideFileStem(AppOptions.FileName)) + "_shape_" +
         std::to_string(roundedMillimetres(shape.Left)) + "_" +
         std::to_string(roundedMillimetres(shape.Top)) + ".jpeg";
}

}  // namespace

void saveShapePicture(VData_Shape& shape, int dpi) {
  const std::int32_t twipsPerDot = dpi > 0 ? kTwipsPerInch / dpi : 0;
  if (twipsPerDot == 0) return;
  const Rect rect = {shape.Left, shape.Top, shape.Right, shape.Bottom};
  const int width = clamped(rect.width() / twipsPerDot);
  const int height = clamped(rect.height() / twipsPerDot);
  if (width <= 0 || height <= 0) return;
  try {
    BitmapCanvas bitmap(width, height, kTwipsPerInch / twipsPerDot);
    shape.Draw(bitmap.canvas());
    OutputFile file(pictureName(shape));
    encodePicture(bitmap.pixels(), PictureFormat::jpeg, dpi, file);
    file.commit();
  } catch (const FileError& error) {
    showWarning(error.what());
  }
}

}  // namespace qor
