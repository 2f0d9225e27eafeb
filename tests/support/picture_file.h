// Pictures as the bytes of their files.
#pragma once

#include <string>
#include <string_view>

#include "platform/pictures/picture.h"
#include "platform/system/byte_sink.h"

namespace qor::test {

inline std::string pictureFile(const PixelView& pixels, PictureFormat format) {
  struct : ByteSink {
    void write(std::string_view bytes) override { text.append(bytes); }
    std::string text;
  } sink;
  encodePicture(pixels, format, 96, sink);
  return sink.text;
}

}  // namespace qor::test
