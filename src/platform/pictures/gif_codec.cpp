// GIF by giflib.
#include <algorithm>
#include <cstring>
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
constexpr std::size_t kMaxColors = 256;
constexpr int kColorBits = 8;

struct Closer {
  void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

int onRead(GifFileType* gif, GifByteType* to, int size) {
  auto& rest = *static_cast<std::string_view*>(gif->UserData);
  const std::size_t count = std::min(rest.size(), static_cast<std::size_t>(size));
  if (count > 0) std::memcpy(to, rest.data(), count);
  rest.remove_prefix(count);
  return static_cast<int>(count);
}

int onWrite(GifFileType* gif, const GifByteType* bytes, int size) {
  auto& out = *static_cast<SinkWriter*>(gif->UserData);
  return out.write(bytes, static_cast<std::size_t>(size)) ? size : 0;
}

// Skips an extension; the number of the transparent colour is taken out of the one that has it.
bool readExtension(GifFileType* gif, int& transparent) {
  int code = 0;
  GifByteType* block = nullptr;
  if (DGifGetExtension(gif, &code, &block) == GIF_ERROR) return false;
  while (block != nullptr) {
    GraphicsControlBlock control{};
    if (code == GRAPHICS_EXT_FUNC_CODE &&
        DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
      transparent = control.TransparentColor;
    }
    if (DGifGetExtensionNext(gif, &block) == GIF_ERROR) return false;
  }
  return true;
}

// Goes to the first image.
bool findImage(GifFileType* gif, int& transparent) {
  GifRecordType record = UNDEFINED_RECORD_TYPE;
  while (DGifGetRecordType(gif, &record) == GIF_OK) {
    if (record == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif) == GIF_OK;
    if (record != EXTENSION_RECORD_TYPE || !readExtension(gif, transparent)) return false;
  }
  return false;
}

// The lines in the order of the file.
std::optional<std::vector<GifPixelType>> readLines(GifFileType* gif) {
  const auto width = static_cast<std::size_t>(gif->Image.Width);
  const auto height = static_cast<std::size_t>(gif->Image.Height);
  std::vector<GifPixelType> lines;
  lines.reserve(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    lines.resize((y + 1) * width);
    if (DGifGetLine(gif, &lines[y * width], gif->Image.Width) == GIF_ERROR) return std::nullopt;
  }
  return lines;
}

// The row of each line of the file.
std::vector<int> lineOrder(int height, bool interlaced) {
  struct Pass {
    int first, step;
  };
  constexpr std::array<Pass, 4> kPasses{{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};
  constexpr std::array<Pass, 1> kOnePass{{{0, 1}}};
  std::vector<int> order;
  const auto passes = interlaced ? std::span<const Pass>(kPasses) : std::span<const Pass>(kOnePass);
  for (const Pass& pass : passes) {
    for (int y = pass.first; y < height; y += pass.step) order.push_back(y);
  }
  return order;
}

std::array<std::uint32_t, kMaxColors> readPalette(const ColorMapObject& map, int transparent) {
  std::array<std::uint32_t, kMaxColors> palette;
  palette.fill(0xFF000000u);
  for (std::size_t i = 0; i < static_cast<std::size_t>(map.ColorCount); ++i) {
    const GifColorType& color = map.Colors[i];
    palette[i] |= static_cast<std::uint32_t>(color.Red << 16 | color.Green << 8 | color.Blue);
  }
  if (transparent >= 0) palette[static_cast<std::size_t>(transparent)] = 0;
  return palette;
}

// Puts the image on its screen, which is transparent where the image isn't.
Picture placeImage(const GifFileType& gif, std::span<const GifPixelType> lines, int screenWidth,
                   int screenHeight, const std::array<std::uint32_t, kMaxColors>& palette) {
  const GifImageDesc& image = gif.Image;
  const auto stride = static_cast<std::size_t>(screenWidth);
  Picture picture{screenWidth, screenHeight, {}};
  picture.pixels.resize(stride * static_cast<std::size_t>(screenHeight));
  auto line = lines.begin();
  for (int y : lineOrder(image.Height, image.Interlace)) {
    const std::size_t at =
        static_cast<std::size_t>(image.Top + y) * stride + static_cast<std::size_t>(image.Left);
    std::transform(line, line + image.Width, &picture.pixels[at],
                   [&](GifPixelType index) { return palette[index]; });
    line += image.Width;
  }
  return picture;
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

bool isGif(std::string_view file) {
  return file.starts_with("GIF87a") || file.starts_with("GIF89a");
}

std::optional<Picture> decodeGif(std::string_view file) {
  std::string_view rest = file;
  const std::unique_ptr<GifFileType, Closer> gif(DGifOpen(&rest, onRead, nullptr));
  int transparent = NO_TRANSPARENT_COLOR;
  if (!gif || !findImage(gif.get(), transparent)) return std::nullopt;
  const GifImageDesc& image = gif->Image;
  // An image that goes beyond its screen makes the screen larger.
  const int width = std::max(gif->SWidth, image.Left + image.Width);
  const int height = std::max(gif->SHeight, image.Top + image.Height);
  if (image.Width <= 0 || image.Height <= 0 || !fitsPicture(width, height)) return std::nullopt;
  const ColorMapObject* map = image.ColorMap != nullptr ? image.ColorMap : gif->SColorMap;
  const auto lines = readLines(gif.get());
  if (map == nullptr || !lines) return std::nullopt;
  return placeImage(*gif, *lines, width, height, readPalette(*map, transparent));
}

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
