// GIF files, written by giflib.
#include <algorithm>
#include <memory>
#include <vector>

#include <gif_lib.h>

#include "base/errors.h"
#include "platform/pictures/palette.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

constexpr int kMaxGifSide = 65535;
constexpr int kColorBits = 8;

int onWrite(GifFileType* gif, const GifByteType* bytes, int size) {
  auto& out = *static_cast<SinkWriter*>(gif->UserData);
  return out.write(bytes, static_cast<std::size_t>(size)) ? size : 0;
}

struct EncoderCloser {
  void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
};

ColorMapObject* colorMap(const std::vector<std::uint32_t>& palette) {
  // The palette must have a power of two of colours.
  std::vector<GifColorType> colors(std::bit_ceil(std::max<std::size_t>(palette.size(), 2)));
  std::transform(palette.begin(), palette.end(), colors.begin(), [](std::uint32_t color) {
    return GifColorType{static_cast<GifByteType>(color >> 16),
                        static_cast<GifByteType>(color >> 8 & 0xFF),
                        static_cast<GifByteType>(color & 0xFF)};
  });
  return GifMakeMapObject(static_cast<int>(colors.size()), colors.data());
}

bool writeGif(GifFileType* gif, const PixelView& pixels, IndexedPicture& picture) {
  const std::unique_ptr<ColorMapObject, void (*)(ColorMapObject*)> map(colorMap(picture.palette),
                                                                       GifFreeMapObject);
  if (!map ||
      EGifPutScreenDesc(gif, pixels.width, pixels.height, kColorBits, 0, map.get()) == GIF_ERROR ||
      EGifPutImageDesc(gif, 0, 0, pixels.width, pixels.height, false, nullptr) == GIF_ERROR) {
    return false;
  }
  for (int y = 0; y < pixels.height; ++y) {
    GifPixelType* line = picture.indices.data() + static_cast<std::ptrdiff_t>(y) * pixels.width;
    if (EGifPutLine(gif, line, pixels.width) == GIF_ERROR) return false;
  }
  return true;
}

}  // namespace

void encodeGif(const PixelView& pixels, ByteSink& sink) {
  if (pixels.width > kMaxGifSide || pixels.height > kMaxGifSide) {
    throw PictureError("the picture is too large for a GIF file");
  }
  IndexedPicture picture = indexed(pixels);
  SinkWriter out(sink);
  std::unique_ptr<GifFileType, EncoderCloser> gif(EGifOpen(&out, onWrite, nullptr));
  const bool written = gif != nullptr && writeGif(gif.get(), pixels, picture);
  // Closing writes the last bytes.
  const bool closed = gif != nullptr && EGifCloseFile(gif.release(), nullptr) == GIF_OK;
  if (!written || !closed) out.fail("the picture can't be written as GIF");
  out.throwIfFailed();
}

}  // namespace qor
