// Windows bitmaps, written: as files, and their parts that icons share.
#include <limits>

#include "base/errors.h"
#include "base/units.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

void putFileHeader(std::string& bytes, std::size_t size, std::size_t dataAt) {
  bytes += "BM";
  putLittleEndian(bytes, static_cast<std::uint32_t>(size), 4);
  putLittleEndian(bytes, 0, 4);
  putLittleEndian(bytes, static_cast<std::uint32_t>(dataAt), 4);
}

void putGrayPalette(std::string& bytes) {
  for (std::uint32_t gray = 0; gray < kMaxDibColors; ++gray) {
    putLittleEndian(bytes, gray * 0x010101, 4);
  }
}

}  // namespace

void putDibHeader(std::string& bytes, const PixelView& pixels, int height, int bits, int dpi) {
  const auto density = static_cast<std::uint32_t>(dotsPerMetre(dpi));
  putLittleEndian(bytes, kDibHeaderSize, 4);
  putLittleEndian(bytes, static_cast<std::uint32_t>(pixels.width), 4);
  putLittleEndian(bytes, static_cast<std::uint32_t>(height), 4);
  putLittleEndian(bytes, 1, 2);
  putLittleEndian(bytes, static_cast<std::uint32_t>(bits), 2);
  // No compression, and a size that follows from the sides.
  for (std::uint32_t value : {kDibPlain, 0u, density, density, 0u, 0u}) {
    putLittleEndian(bytes, value, 4);
  }
}

void writeDibRows(const PixelView& pixels, int bits, ByteSink& sink) {
  std::string bytes(dibRowSize(pixels.width, bits), '\0');
  auto* grays = reinterpret_cast<unsigned char*>(bytes.data());
  for (int y = pixels.height - 1; y >= 0; --y) {
    const auto row = pixels.row(y);
    if (bits == 8) {
      copyGrays(row, grays);
    } else {
      char* to = bytes.data();
      for (std::uint32_t pixel : row) {
        *to++ = static_cast<char>(pixel & 0xFF);
        *to++ = static_cast<char>(pixel >> 8 & 0xFF);
        *to++ = static_cast<char>(pixel >> 16 & 0xFF);
      }
    }
    sink.write(bytes);
  }
}

void encodeBmp(const PixelView& pixels, bool gray, int dpi, ByteSink& sink) {
  const int bits = gray ? 8 : 24;
  const std::size_t dataAt = kBmpFileHeaderSize + kDibHeaderSize + (gray ? kMaxDibColors * 4 : 0);
  const std::size_t size =
      dataAt + dibRowSize(pixels.width, bits) * static_cast<std::size_t>(pixels.height);
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw PictureError("the picture is too large for a BMP file");
  }
  std::string head;
  putFileHeader(head, size, dataAt);
  putDibHeader(head, pixels, pixels.height, bits, dpi);
  if (gray) putGrayPalette(head);
  sink.write(head);
  writeDibRows(pixels, bits, sink);
}

}  // namespace qor
