// What the header of a JPEG tells.
#pragma once

#include <optional>
#include <string_view>

namespace qor {

struct JpegHeader {
  int width = 0;  // pixels
  int height = 0;
  int components = 0;
  // Whether any reader of JPEG shows it in the same colours: sequential or progressive, in gray or
  // in the usual colours.
  bool plain = false;
};

// Nothing where the marks don't lead to the header of a frame.
std::optional<JpegHeader> readJpegHeader(std::string_view file);

}  // namespace qor
