// Icons: a directory of images, each a PNG file or a bitmap with a mask of what is transparent.
#include <algorithm>
#include <limits>
#include <tuple>

#include "base/errors.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

constexpr std::size_t kDirectorySize = 6;
constexpr std::size_t kEntrySize = 16;
constexpr int kMaxEntrySide = 255;
constexpr int kBits = 24;
constexpr std::uint32_t kAlphaMask = 0xFF000000;
constexpr std::uint32_t kWhite = 0xFFFFFF;

// One image of the directory: its bytes and what its own header says. The directory's sizes end at
// 256 and can't be relied upon.
struct IconImage {
  std::string_view bytes;
  std::int64_t width = 0;
  std::int64_t height = 0;
  int bits = 0;

  auto rank() const { return std::tuple(width * height, bits); }
};

bool describePng(IconImage& image) {
  // Gray, nothing, RGB, palette, gray with alpha, nothing, RGB with alpha.
  constexpr std::array<int, 7> kChannels{1, 0, 3, 1, 2, 0, 4};
  if (image.bytes.size() < 26) return false;
  const auto kind = static_cast<unsigned char>(image.bytes[25]);
  image.width = bigEndian(image.bytes, 16);
  image.height = bigEndian(image.bytes, 20);
  image.bits = kind < kChannels.size() ? image.bytes[24] * kChannels[kind] : 0;
  return fitsPicture(image.width, image.height);
}

bool describeDib(IconImage& image) {
  const auto header = readDibHeader(image.bytes);
  if (!header) return false;
  image.width = header->width;
  image.height = header->height / 2;
  image.bits = header->bits;
  return fitsPicture(image.width, image.height);
}

std::optional<IconImage> findLargest(std::string_view file) {
  const std::size_t count = littleEndian(file, 4, 2);
  if (file.size() < kDirectorySize + count * kEntrySize) return std::nullopt;
  std::optional<IconImage> largest;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t entry = kDirectorySize + i * kEntrySize;
    const std::size_t size = littleEndian(file, entry + 8, 4);
    const std::size_t at = littleEndian(file, entry + 12, 4);
    if (at > file.size() || size > file.size() - at) return std::nullopt;
    IconImage image{.bytes = file.substr(at, size)};
    if (!(isPng(image.bytes) ? describePng(image) : describeDib(image))) return std::nullopt;
    if (!largest || image.rank() > largest->rank()) largest = image;
  }
  return largest;
}

// Makes transparent what the mask's bits say.
bool applyMask(const DibHeader& header, std::string_view mask, Picture& picture) {
  const auto width = static_cast<std::size_t>(picture.width);
  const auto height = static_cast<std::size_t>(picture.height);
  const std::size_t rowSize = dibRowSize(picture.width, 1);
  if (mask.size() < rowSize * height) return false;
  for (std::size_t y = 0; y < height; ++y) {
    const auto row = mask.substr((header.topDown ? y : height - 1 - y) * rowSize, rowSize);
    for (std::size_t x = 0; x < width; ++x) {
      const bool isClear = (static_cast<unsigned char>(row[x / 8]) >> (7 - x % 8) & 1) != 0;
      std::uint32_t& pixel = picture.pixels[y * width + x];
      pixel = isClear ? 0 : pixel | kAlphaMask;
    }
  }
  return true;
}

std::optional<Picture> decodeIconDib(std::string_view bytes) {
  auto header = readDibHeader(bytes);
  if (!header || header->end() > bytes.size()) return std::nullopt;
  if (header->compression == kDibRle8 || header->compression == kDibRle4) return std::nullopt;
  header->height /= 2;
  if (header->bits == 32 && header->compression == kDibPlain) header->masks[3] = kAlphaMask;
  const std::string_view data = bytes.substr(header->end());
  auto picture = readDibPixels(*header, bytes, data);
  if (!picture) return std::nullopt;
  const auto isSeen = [](std::uint32_t pixel) { return (pixel & kAlphaMask) != 0; };
  // The mask counts where the pixels have no alpha of their own.
  if (header->masks[3] != 0 && header->bits > 8 && std::ranges::any_of(picture->pixels, isSeen)) {
    premultiply(*picture);
    return picture;
  }
  const std::size_t maskAt =
      dibRowSize(header->width, header->bits) * static_cast<std::size_t>(header->height);
  if (!applyMask(*header, data.substr(maskAt), *picture)) return std::nullopt;
  return picture;
}

void putDirectory(std::string& bytes, const PixelView& pixels, std::size_t size) {
  const auto side = [](int pixelCount) {
    return static_cast<std::uint32_t>(pixelCount > kMaxEntrySide ? 0 : pixelCount);
  };
  putLittleEndian(bytes, 0, 2);
  putLittleEndian(bytes, 1, 2);
  putLittleEndian(bytes, 1, 2);
  putLittleEndian(bytes, side(pixels.width), 1);
  putLittleEndian(bytes, side(pixels.height), 1);
  putLittleEndian(bytes, 0, 2);
  putLittleEndian(bytes, 1, 2);
  putLittleEndian(bytes, kBits, 2);
  putLittleEndian(bytes, static_cast<std::uint32_t>(size), 4);
  putLittleEndian(bytes, kDirectorySize + kEntrySize, 4);
}

// The mask is the picture itself in black and white: only what is pure white is transparent.
void writeMask(const PixelView& pixels, ByteSink& sink) {
  for (int y = pixels.height - 1; y >= 0; --y) {
    std::string bytes(dibRowSize(pixels.width, 1), '\0');
    const auto row = pixels.row(y);
    for (std::size_t x = 0; x < row.size(); ++x) {
      if ((row[x] & kWhite) != kWhite) continue;
      bytes[x / 8] = static_cast<char>(static_cast<unsigned char>(bytes[x / 8]) | 0x80 >> x % 8);
    }
    sink.write(bytes);
  }
}

}  // namespace

bool isIco(std::string_view file) {
  return file.size() >= kDirectorySize && file.starts_with(std::string_view("\0\0\1\0", 4));
}

std::optional<Picture> decodeIco(std::string_view file) {
  const auto image = findLargest(file);
  if (!image) return std::nullopt;
  return isPng(image->bytes) ? decodePng(image->bytes) : decodeIconDib(image->bytes);
}

void encodeIco(const PixelView& pixels, int dpi, ByteSink& sink) {
  const std::size_t rowSize = dibRowSize(pixels.width, kBits) + dibRowSize(pixels.width, 1);
  const std::size_t size = kDibHeaderSize + rowSize * static_cast<std::size_t>(pixels.height);
  if (pixels.width > kMaxPictureSide || pixels.height > kMaxPictureSide ||
      size > std::numeric_limits<std::uint32_t>::max()) {
    throw PictureError("the picture is too large for an ICO file");
  }
  std::string head;
  putDirectory(head, pixels, size);
  putDibHeader(head, pixels, pixels.height * 2, kBits, dpi);
  sink.write(head);
  writeDibRows(pixels, kBits, sink);
  writeMask(pixels, sink);
}

}  // namespace qor
