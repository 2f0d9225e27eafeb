// Making pictures that can be embedded.
#include "platform/pictures/embedded_picture.h"

#include <utility>

#include "base/units.h"
#include "platform/pictures/picture.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

class StringSink : public ByteSink {
 public:
  void write(std::string_view part) override { bytes += part; }

  std::string bytes;
};

// Pixels come multiplied by their alpha: what is left of it lets the paper through.
void putOnWhite(Picture& picture) {
  for (std::uint32_t& pixel : picture.pixels) pixel += (0xFF - (pixel >> 24)) * 0x010101;
}

std::string pngOf(Picture& picture) {
  putOnWhite(picture);
  StringSink sink;
  encodePicture({picture.width, picture.height, picture.width, picture.pixels.data()},
                PictureFormat::png, kPictureDpi, sink);
  return std::move(sink.bytes);
}

}  // namespace

std::optional<EmbeddedPicture> embeddedPicture(std::string file) {
  auto picture = decodePicture(file);
  if (!picture) return std::nullopt;
  EmbeddedPicture embedded = {{}, EmbeddedKind::png, picture->width, picture->height};
  if (isJpeg(file) && picture->whole) embedded.kind = EmbeddedKind::jpeg;
  const bool asItIs = picture->whole && (isPng(file) || isJpeg(file));
  embedded.bytes = asItIs ? std::move(file) : pngOf(*picture);
  return embedded;
}

}  // namespace qor
