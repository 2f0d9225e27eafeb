// The dots of a bitmap as an image that Qt draws.
#pragma once

#include <QImage>

#include "platform/pictures/picture.h"

namespace qor {

// It copies nothing and is valid as long as the dots are.
inline QImage imageOver(const PixelView& dots) {
  return {reinterpret_cast<const uchar*>(dots.pixels), dots.width, dots.height,
          qsizetype{dots.stride} * 4, QImage::Format_RGB32};
}

}  // namespace qor
