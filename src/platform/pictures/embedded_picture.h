// Pictures as other files hold them: PNG and JPEG as they came where they are whole, others as PNG.
#pragma once

#include <optional>
#include <string>

namespace qor {

enum class EmbeddedKind { png, jpeg };

struct EmbeddedPicture {
  std::string bytes;
  EmbeddedKind kind = EmbeddedKind::png;
  int width = 0;  // pixels
  int height = 0;
};

// Of a file's bytes; nothing where they are no picture that can be shown. What shines through
// becomes white where the picture is made anew.
std::optional<EmbeddedPicture> embeddedPicture(std::string file);

}  // namespace qor
