// PNG files whose data other formats can hold as it stands.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace qor {

struct PlainPng {
  int width = 0;  // pixels
  int height = 0;
  int bits = 0;     // of a sample, 1 to 8
  int samples = 0;  // of a pixel: 1 gray or a number of the palette, 3 red, green, blue
  bool indexed = false;
  std::string_view palette;            // then: red, green and blue of each colour
  std::vector<std::string_view> data;  // pieces of one stream of zlib, rows with PNG's filters
};

// Nothing where the file is none, has a transparent colour, is interlaced or of more than eight
// bits.
std::optional<PlainPng> readPlainPng(std::string_view file);

}  // namespace qor
