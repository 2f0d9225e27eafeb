// A canvas on a bitmap in memory.
#pragma once

#include <memory>

#include "platform/canvas/canvas.h"
#include "platform/pictures/picture.h"

namespace qor {

class BitmapCanvas {
 public:
  // A white bitmap of width * height dots. Throws PictureError where it is empty, larger than the
  // limits of pictures allow, or too large for the memory.
  BitmapCanvas(int width, int height, int dpi);
  ~BitmapCanvas();

  Canvas& canvas();

  // Makes every dot white and the canvas as a new one.
  void clear();

  // What has been drawn. Valid until the next drawing.
  PixelView pixels();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace qor
