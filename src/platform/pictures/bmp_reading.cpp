// Windows and OS/2 bitmaps, read: as files, and their parts that icons share.
#include <algorithm>

#include "platform/pictures/bmp_runs.h"
#include "platform/pictures/picture_codecs.h"

namespace qor {
namespace {

constexpr std::size_t kCoreHeaderSize = 12;
// Headers from these sizes on hold the masks; before, they follow the header.
constexpr std::size_t kMaskHeaderSize = 52;
constexpr std::size_t kAlphaMaskHeaderSize = 56;
// The header of OS/2 2.x, whose bytes at the place of the masks mean other things.
constexpr std::size_t kOs2HeaderSize = 64;
constexpr std::uint32_t kOpaque = 0xFF000000;

using Palette = std::array<std::uint32_t, kMaxDibColors>;

// The compressions that can hold pixels of so many bits.
bool isKnownKind(int bits, std::uint32_t compression) {
  switch (compression) {
    case kDibPlain:
      return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    case kDibRle8: return bits == 8;
    case kDibRle4: return bits == 4;
    case kDibMasks:
    case kDibAlphaMasks: return bits == 16 || bits == 32;
    default: return false;
  }
}

// Sets the masks of the pixels and how many bytes of them follow the header.
std::optional<std::size_t> readMasks(std::string_view dib, std::size_t headerSize,
                                     DibHeader& header) {
  if (header.compression != kDibMasks && header.compression != kDibAlphaMasks) {
    header.masks = header.bits == 16 ? std::array<std::uint32_t, 4>{0x7C00, 0x3E0, 0x1F, 0}
                                     : std::array<std::uint32_t, 4>{0xFF0000, 0xFF00, 0xFF, 0};
    return 0;
  }
  const bool inside = headerSize >= kMaskHeaderSize;
  const bool hasAlpha =
      inside ? headerSize >= kAlphaMaskHeaderSize : header.compression == kDibAlphaMasks;
  const std::size_t count = hasAlpha ? 4 : 3;
  if (headerSize == kOs2HeaderSize || headerSize < kDibHeaderSize ||
      dib.size() < kDibHeaderSize + count * 4) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < count; ++i) {
    header.masks[i] = littleEndian(dib, kDibHeaderSize + i * 4, 4);
  }
  return inside ? 0 : count * 4;
}

DibHeader readCoreHeader(std::string_view dib) {
  DibHeader header;
  header.width = littleEndian(dib, 4, 2);
  header.height = littleEndian(dib, 6, 2);
  header.bits = static_cast<int>(littleEndian(dib, 10, 2));
  header.paletteEntrySize = 3;
  return header;
}

DibHeader readInfoHeader(std::string_view dib, std::size_t headerSize) {
  DibHeader header;
  // Short headers leave out what is zero.
  const auto field = [&](std::size_t at, std::size_t size) {
    return at + size <= headerSize ? littleEndian(dib, at, size) : 0;
  };
  header.width = static_cast<std::int32_t>(field(4, 4));
  header.height = static_cast<std::int32_t>(field(8, 4));
  header.topDown = header.height < 0;
  if (header.topDown) header.height = -header.height;
  header.bits = static_cast<int>(field(14, 2));
  header.compression = field(16, 4);
  header.paletteCount = field(32, 4);
  return header;
}

Palette readPalette(const DibHeader& header, std::string_view dib) {
  Palette palette;
  palette.fill(kOpaque);
  for (std::size_t i = 0; i < std::min(header.paletteCount, kMaxDibColors); ++i) {
    const std::size_t at = header.paletteAt + i * header.paletteEntrySize;
    if (at + header.paletteEntrySize > dib.size()) break;
    palette[i] |= littleEndian(dib, at, 3);
  }
  return palette;
}

// One of the parts of a pixel without palette, brought to eight bits.
class Channel {
 public:
  explicit Channel(std::uint32_t mask)
      : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), max_(mask >> shift_) {}

  std::uint32_t of(std::uint32_t pixel) const {
    const std::uint32_t value = (pixel & mask_) >> shift_;
    if (max_ == 0xFF || max_ == 0) return value;
    return static_cast<std::uint32_t>((std::uint64_t{value} * 0xFF + max_ / 2) / max_);
  }

 private:
  std::uint32_t mask_;
  int shift_;
  std::uint32_t max_;
};

void readIndexedRow(std::string_view bytes, int bits, const Palette& palette,
                    std::span<std::uint32_t> row) {
  const auto width = static_cast<unsigned>(bits);
  for (std::size_t x = 0; x < row.size(); ++x) {
    const unsigned byte = static_cast<unsigned char>(bytes[x * width / 8]);
    const auto shift = static_cast<unsigned>(8 - width - x * width % 8);
    row[x] = palette[byte >> shift & ((1u << width) - 1)];
  }
}

void readMaskedRow(std::string_view bytes, const DibHeader& header, std::span<std::uint32_t> row) {
  const auto& masks = header.masks;
  const Channel red(masks[0]), green(masks[1]), blue(masks[2]), alpha(masks[3]);
  const std::uint32_t solid = masks[3] == 0 ? kOpaque : 0;
  const auto size = static_cast<std::size_t>(header.bits / 8);
  for (std::size_t x = 0; x < row.size(); ++x) {
    const std::uint32_t pixel = littleEndian(bytes, x * size, size);
    row[x] =
        solid | alpha.of(pixel) << 24 | red.of(pixel) << 16 | green.of(pixel) << 8 | blue.of(pixel);
  }
}

}  // namespace

std::optional<DibHeader> readDibHeader(std::string_view dib) {
  if (dib.size() < kCoreHeaderSize) return std::nullopt;
  const std::size_t headerSize = littleEndian(dib, 0, 4);
  if (headerSize > dib.size() || (headerSize != kCoreHeaderSize && headerSize < 16)) {
    return std::nullopt;
  }
  DibHeader header =
      headerSize == kCoreHeaderSize ? readCoreHeader(dib) : readInfoHeader(dib, headerSize);
  if (!isKnownKind(header.bits, header.compression)) return std::nullopt;
  const auto maskBytes = readMasks(dib, headerSize, header);
  if (!maskBytes) return std::nullopt;
  header.paletteAt = headerSize + *maskBytes;
  if (header.bits <= 8 && (header.paletteCount == 0 || header.paletteCount > kMaxDibColors)) {
    header.paletteCount = std::size_t{1} << header.bits;
  }
  return header;
}

std::optional<Picture> readDibPixels(const DibHeader& header, std::string_view dib,
                                     std::string_view data) {
  if (!fitsPicture(header.width, header.height)) return std::nullopt;
  const bool packed = header.compression == kDibRle8 || header.compression == kDibRle4;
  std::optional<std::string> unpacked;
  if (packed && !(unpacked = unpackRuns(header, data))) return std::nullopt;
  const std::string_view bytes = packed ? std::string_view(*unpacked) : data;
  const int bits = packed ? 8 : header.bits;
  const auto width = static_cast<std::size_t>(header.width);
  const auto height = static_cast<std::size_t>(header.height);
  const std::size_t rowSize = packed ? width : dibRowSize(header.width, bits);
  if (bytes.size() < rowSize * height) return std::nullopt;
  const Palette palette = readPalette(header, dib);
  Picture picture{static_cast<int>(width), static_cast<int>(height), {}};
  picture.pixels.resize(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    const std::span row(&picture.pixels[y * width], width);
    const auto from = bytes.substr((header.topDown ? y : height - 1 - y) * rowSize, rowSize);
    if (bits <= 8) {
      readIndexedRow(from, bits, palette, row);
    } else {
      readMaskedRow(from, header, row);
    }
  }
  return picture;
}

bool isBmp(std::string_view file) {
  return file.starts_with("BM");
}

std::optional<Picture> decodeBmp(std::string_view file) {
  if (file.size() < kBmpFileHeaderSize) return std::nullopt;
  const std::size_t dataAt = littleEndian(file, 10, 4);
  const std::string_view dib = file.substr(kBmpFileHeaderSize);
  const auto header = readDibHeader(dib);
  if (!header || dataAt > file.size()) return std::nullopt;
  auto picture = readDibPixels(*header, dib, file.substr(dataAt));
  if (picture) premultiply(*picture);
  return picture;
}

}  // namespace qor
