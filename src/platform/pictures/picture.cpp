#include "platform/pictures/picture.h"

#include <algorithm>
#include <cmath>

#include "base/errors.h"
#include "base/units.h"
#include "platform/pictures/jpeg_header.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

struct Decoder {
  bool (*knows)(std::string_view file);
  std::optional<Picture> (*decode)(std::string_view file);
};

// The longest signatures first.
constexpr std::array<Decoder, 5> kDecoders{{
    {isPng, decodePng},
    {isGif, decodeGif},
    {isIco, decodeIco},
    {isJpeg, decodeJpeg},
    {isBmp, decodeBmp},
}};

// Compilers make vector code for this many pixels without a rest to look after.
constexpr std::size_t kGrayBlock = 64;

bool isGrayRow(std::span<const std::uint32_t> row) {
  std::uint32_t difference = 0;
  std::size_t x = 0;
  for (; x + kGrayBlock <= row.size(); x += kGrayBlock) {
    const std::uint32_t* block = row.data() + x;
    for (std::size_t i = 0; i < kGrayBlock; ++i) difference |= block[i] ^ (block[i] >> 8);
  }
  for (; x < row.size(); ++x) difference |= row[x] ^ (row[x] >> 8);
  return (difference & 0xFFFF) == 0;
}

std::uint32_t multiplied(std::uint32_t pixel, std::uint32_t alpha, int shift) {
  const std::uint32_t product = (pixel >> shift & 0xFF) * alpha + 128;
  return (product + (product >> 8)) >> 8 << shift;
}

}  // namespace

std::optional<Picture> decodePicture(std::string_view file) {
  for (const Decoder& decoder : kDecoders) {
    if (decoder.knows(file)) return decoder.decode(file);
  }
  return std::nullopt;
}

std::uint64_t decodingBytes(std::string_view file) {
  constexpr std::uint64_t kIcon = 64U << 20;
  const auto bytesOf = [](std::int64_t width, std::int64_t height, std::uint64_t perPixel) {
    return fitsPicture(width, height) ? static_cast<std::uint64_t>(width * height) * perPixel : 0;
  };
  if (isPng(file) && file.size() >= 24) return bytesOf(bigEndian(file, 16), bigEndian(file, 20), 4);
  if (isGif(file) && file.size() >= 10)
    return bytesOf(littleEndian(file, 6, 2), littleEndian(file, 8, 2), 5);
  if (isIco(file)) return kIcon;
  if (const auto header = isJpeg(file) ? readJpegHeader(file) : std::nullopt) {
    // Of more than one scan all coefficients are held, two bytes each.
    return bytesOf(header->width, header->height,
                   4 + 2 * static_cast<std::uint64_t>(header->components));
  }
  const auto header = isBmp(file) ? readDibHeader(file.substr(kBmpFileHeaderSize)) : std::nullopt;
  return header ? bytesOf(header->width, header->height, 5) : 0;
}

bool isGray(const PixelView& pixels) {
  for (int y = 0; y < pixels.height; ++y) {
    if (!isGrayRow(pixels.row(y))) return false;
  }
  return true;
}

void encodePicture(const PixelView& pixels, PictureFormat format, int dpi, ByteSink& sink) {
  if (pixels.width <= 0 || pixels.height <= 0) throw PictureError("the picture has no pixels");
  switch (format) {
    case PictureFormat::bmp: return encodeBmp(pixels, isGray(pixels), dpi, sink);
    case PictureFormat::jpeg: return encodeJpeg(pixels, isGray(pixels), dpi, sink);
    case PictureFormat::gif: return encodeGif(pixels, sink);
    case PictureFormat::ico: return encodeIco(pixels, dpi, sink);
    case PictureFormat::png: return encodePng(pixels, isGray(pixels), dpi, sink);
  }
}

bool fitsPicture(std::int64_t width, std::int64_t height) {
  return width > 0 && height > 0 && width <= kMaxPictureSide && height <= kMaxPictureSide &&
         width * height <= kMaxPicturePixels;
}

bool canBePartOf(std::size_t bytes, std::int64_t width, std::int64_t height) {
  constexpr std::int64_t kMostPerByte = 8192;
  return width * height / kMostPerByte <= static_cast<std::int64_t>(bytes);
}

Picture makeRowless(int width, int height) {
  Picture picture{width, height, {}};
  picture.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  return picture;
}

unsigned char* appendRow(Picture& picture) {
  const std::size_t at = picture.pixels.size();
  picture.pixels.resize(at + static_cast<std::size_t>(picture.width));
  return reinterpret_cast<unsigned char*>(picture.pixels.data() + at);
}

void premultiply(Picture& picture) {
  for (std::uint32_t& pixel : picture.pixels) {
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 0xFF) continue;
    pixel = alpha << 24 | multiplied(pixel, alpha, 16) | multiplied(pixel, alpha, 8) |
            multiplied(pixel, alpha, 0);
  }
}

void copyGrays(std::span<const std::uint32_t> row, unsigned char* grays) {
  std::transform(row.begin(), row.end(), grays,
                 [](std::uint32_t pixel) { return static_cast<unsigned char>(pixel & 0xFF); });
}

bool SinkWriter::write(const void* bytes, std::size_t size) noexcept {
  if (failure_) return false;
  try {
    sink_.write({static_cast<const char*>(bytes), size});
  } catch (...) {
    failure_ = std::current_exception();
  }
  return !failure_;
}

void SinkWriter::throwIfFailed() const {
  if (failure_) std::rethrow_exception(failure_);
}

void SinkWriter::fail(const char* text) const {
  throwIfFailed();
  throw PictureError(text);
}

std::uint32_t littleEndian(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i > 0; --i) {
    value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return value;
}

std::int64_t bigEndian(std::string_view bytes, std::size_t at) {
  std::int64_t value = 0;
  for (const char byte : bytes.substr(at, 4)) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

void putLittleEndian(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>(value >> 8 * i & 0xFF));
}

}  // namespace qor
