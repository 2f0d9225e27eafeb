// Which font file serves which request, for the files of platform/ that make fonts.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/fonts/font_face.h"
#include "platform/fonts/log_font.h"

namespace qor {

struct FaceRequest {
  std::string family;
  int weight = kPlainWeight;  // 0 to 1000, 0: as it comes
  bool italic = false;

  bool operator==(const FaceRequest&) const = default;
};

// The best face for the request. Throws FileError on a system without any font.
std::shared_ptr<const FontFace> matchFace(const FaceRequest& request);

// The first face, in order of likeness to the request, that has the character; null if none has.
std::shared_ptr<const FontFace> fallbackFace(const FaceRequest& request, char32_t character);

}  // namespace qor
