// A canvas on a bitmap in memory.
#pragma once

#include <memory>

#include "platform/canvas.h"
#include "platform/picture.h"

namespace qor {

class BitmapCanvas {
 public:
  // A white bitmap of width * height dots. Throws FileError where it is empty, or larger than the
  // limits of pictures allow.
  BitmapCanvas(int width, int height, int dpi);
  ~BitmapCanvas();

  Canvas& canvas();

  // Makes every dot white.
  void clear();

  // What has been drawn. Valid until the next drawing.
  PixelView pixels();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace qor
