// The picture formats one by one, and what their codecs share; picture.cpp puts them together.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/pictures/picture.h"

namespace qor {

// The libraries read and write the pixels in place, as bytes: blue, green, red, alpha.
static_assert(std::endian::native == std::endian::little);

bool isPng(std::string_view file);
bool isJpeg(std::string_view file);
bool isGif(std::string_view file);
bool isBmp(std::string_view file);
bool isIco(std::string_view file);

std::optional<Picture> decodePng(std::string_view file);
std::optional<Picture> decodeJpeg(std::string_view file);
std::optional<Picture> decodeGif(std::string_view file);
std::optional<Picture> decodeBmp(std::string_view file);
std::optional<Picture> decodeIco(std::string_view file);

void encodePng(const PixelView& pixels, bool gray, int dpi, ByteSink& sink);
void encodeJpeg(const PixelView& pixels, bool gray, int dpi, ByteSink& sink);
void encodeGif(const PixelView& pixels, ByteSink& sink);
void encodeBmp(const PixelView& pixels, bool gray, int dpi, ByteSink& sink);
void encodeIco(const PixelView& pixels, int dpi, ByteSink& sink);

// Whether a decoder may make a picture of this size.
bool fitsPicture(std::int64_t width, std::int64_t height);

// Whether so many bytes can be a part of the file of a picture of this size that is worth its
// memory: no format packs more pixels into a byte.
bool canBePartOf(std::size_t bytes, std::int64_t width, std::int64_t height);

// A picture without rows. Memory for all of them is set aside but not touched before they are
// appended, so a header that promises more than its file holds costs nothing.
Picture makeRowless(int width, int height);

// Appends a row of zeroes and gives its bytes.
unsigned char* appendRow(Picture& picture);

// Multiplies the colours by alpha.
void premultiply(Picture& picture);

// The blue of each pixel: the brightness of gray ones.
void copyGrays(std::span<const std::uint32_t> row, unsigned char* grays);

// Takes the bytes of a C library to a sink. An exception must not cross the library's frames: it is
// kept, and thrown again when the library has returned.
class SinkWriter {
 public:
  explicit SinkWriter(ByteSink& sink) : sink_(sink) {}

  bool write(const void* bytes, std::size_t size) noexcept;
  void throwIfFailed() const;
  // Throws the sink's exception, or PictureError with the text where the library itself gave up.
  [[noreturn]] void fail(const char* text) const;

 private:
  ByteSink& sink_;
  std::exception_ptr failure_;
};

// Numbers of one to four bytes, the lowest first.
std::uint32_t littleEndian(std::string_view bytes, std::size_t at, std::size_t size);
void putLittleEndian(std::string& bytes, std::uint32_t value, int size);

// A number of four bytes, the highest first.
std::int64_t bigEndian(std::string_view bytes, std::size_t at);

// The header of a device-independent bitmap: a BMP file holds one, and so do the images of icons.
struct DibHeader {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool topDown = false;
  int bits = 0;
  std::uint32_t compression = 0;
  // Red, green, blue and alpha of pixels without palette; no alpha means opaque.
  std::array<std::uint32_t, 4> masks{};
  std::size_t paletteAt = 0;
  std::size_t paletteCount = 0;
  std::size_t paletteEntrySize = 4;

  std::size_t end() const { return paletteAt + paletteCount * paletteEntrySize; }
};

inline constexpr std::size_t kBmpFileHeaderSize = 14;  // before a file's bitmap
inline constexpr std::size_t kDibHeaderSize = 40;      // of Windows, without later additions
inline constexpr std::size_t kMaxDibColors = 256;      // of a palette

inline constexpr std::uint32_t kDibPlain = 0;
inline constexpr std::uint32_t kDibRle8 = 1;
inline constexpr std::uint32_t kDibRle4 = 2;
inline constexpr std::uint32_t kDibMasks = 3;
inline constexpr std::uint32_t kDibAlphaMasks = 6;

// Rows of a bitmap fill whole groups of four bytes.
inline std::size_t dibRowSize(std::int64_t width, int bits) {
  return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

std::optional<DibHeader> readDibHeader(std::string_view dib);

// The pixels, not yet multiplied by alpha. `dib` starts with the header, `data` with the pixels.
std::optional<Picture> readDibPixels(const DibHeader& header, std::string_view dib,
                                     std::string_view data);

// The header of 40 bytes for a bitmap of 8 or 24 bits, from the bottom up, with `height` rows.
void putDibHeader(std::string& bytes, const PixelView& pixels, int height, int bits, int dpi);
void writeDibRows(const PixelView& pixels, int bits, ByteSink& sink);

}  // namespace qor
