// Faces that a document can hold.
#pragma once

#include <memory>

#include "platform/fonts/font_catalogue.h"

namespace qor {

// The best face for the request, or else one of fixed pitch. Throws FileError where none can be
// embedded.
std::shared_ptr<const FontFace> embeddableFace(FaceRequest request);

}  // namespace qor
