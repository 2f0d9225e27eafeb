// Choosing faces for documents.
#include "platform/pdf/embeddable_face.h"

#include "base/errors.h"
#include "platform/pdf/pdf_faces.h"

namespace qor {

std::shared_ptr<const FontFace> embeddableFace(FaceRequest request) {
  auto face = matchFace(request);
  if (canBeEmbedded(*face)) return face;
  request.family = "Courier New";
  face = matchFace(request);
  if (canBeEmbedded(*face)) return face;
  throw FileError(face->file() + ": the font can't be embedded");
}

}  // namespace qor
