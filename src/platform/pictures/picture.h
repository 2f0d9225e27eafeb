// Pictures in memory, and the files they come from and go to. Reading is by content (the first
// bytes tell the format), never by the name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

class ByteSink;

// A decoded picture: width * height pixels, row by row from the top, each 0xAARRGGBB with the
// colours already multiplied by alpha.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
  bool whole = true;  // else the file is damaged, and this is as far as it goes
};

// Pixels to be encoded: rows from the top, each pixel 0xXXRRGGBB; the top byte is ignored.
// `stride` is the distance between rows in pixels.
struct PixelView {
  int width = 0;
  int height = 0;
  int stride = 0;
  const std::uint32_t* pixels = nullptr;

  std::span<const std::uint32_t> row(int y) const {
    return {pixels + static_cast<std::ptrdiff_t>(y) * stride, static_cast<std::size_t>(width)};
  }
};

enum class PictureFormat { bmp, jpeg, gif, ico, png };

// Larger pictures are refused, whatever their header promises.
inline constexpr int kMaxPictureSide = 32767;
inline constexpr std::int64_t kMaxPicturePixels = 1LL << 26;

// Decodes a PNG, JPEG, GIF (first image), BMP or ICO (largest image) file. Of one that is cut short
// or damaged what can be seen is shown, as other viewers do: what is missing is transparent, in
// JPEG gray. Nothing if the bytes are none of these, hold no part of the picture or are larger than
// the limits above.
std::optional<Picture> decodePicture(std::string_view file);

// The memory, in bytes, that decoding a file takes at most, with the picture and without the file.
std::uint64_t decodingBytes(std::string_view file);

// True if every pixel has equal red, green and blue. Pages without colour are written as gray.
bool isGray(const PixelView& pixels);

// Writes the pixels as a file of the format; gray pictures with one channel (or a gray palette),
// others in colour. `dpi` goes into the header where the format has a place for it. JPEG is written
// without colour subsampling. Throws what the sink throws, and PictureError for pixels that the
// format can't hold.
void encodePicture(const PixelView& pixels, PictureFormat format, int dpi, ByteSink& sink);

}  // namespace qor
