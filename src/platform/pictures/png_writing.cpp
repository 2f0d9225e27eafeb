// Writing PNG: a header and chunks around what the compressor makes of the rows.
#include <array>
#include <cstring>
#include <memory>

#include "base/units.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"
#include "platform/system/compressor.h"

namespace qor {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";

// For pages of text, mostly white: levels from 4 on save a few hundred bytes of fifty thousand and
// take more time, and so do the filters.
constexpr int kCompressionLevel = 3;

constexpr char kDepth = 8;
constexpr char kGray = 0;
constexpr char kColour = 2;
constexpr char kPerMetre = 1;

// Four bytes, the highest first.
void put(std::string& bytes, std::uint32_t value) {
  for (unsigned shift = 32; shift > 0; shift -= 8)
    bytes += static_cast<char>(value >> (shift - 8) & 0xFFU);
}

void writeChunk(std::string_view name, std::string_view data, ByteSink& sink) {
  std::string part;
  put(part, static_cast<std::uint32_t>(data.size()));
  sink.write(part.append(name));
  sink.write(data);
  part.clear();
  put(part, crc32Of(data, crc32Of(name)));
  sink.write(part);
}

std::string headerOf(const PixelView& pixels, bool gray) {
  std::string header;
  put(header, static_cast<std::uint32_t>(pixels.width));
  put(header, static_cast<std::uint32_t>(pixels.height));
  for (const char byte : {kDepth, gray ? kGray : kColour, '\0', '\0', '\0'}) header += byte;
  return header;
}

std::string densityOf(int dpi) {
  std::string density;
  for (int i = 0; i < 2; ++i) put(density, static_cast<std::uint32_t>(dotsPerMetre(dpi)));
  return density += kPerMetre;
}

void copyColours(std::span<const std::uint32_t> row, unsigned char* colours) {
  for (const std::uint32_t pixel : row) {
    *colours++ = static_cast<unsigned char>(pixel >> 16U);
    *colours++ = static_cast<unsigned char>(pixel >> 8U);
    *colours++ = static_cast<unsigned char>(pixel);
  }
}

// The rows as they are packed, each behind a byte that says that no filter was used.
class PackedRows {
 public:
  PackedRows(const PixelView& pixels, bool gray)
      : row_size_(1 + static_cast<std::size_t>(pixels.width) * (gray ? 1 : 3)),
        size_(row_size_ * static_cast<std::size_t>(pixels.height)),
        bytes_(std::make_unique_for_overwrite<unsigned char[]>(size_)) {
    for (int y = 0; y < pixels.height; ++y) {
      unsigned char* row = bytes_.get() + row_size_ * static_cast<std::size_t>(y);
      *row = 0;
      gray ? copyGrays(pixels.row(y), row + 1) : copyColours(pixels.row(y), row + 1);
    }
  }

  std::string_view bytes() const { return {reinterpret_cast<const char*>(bytes_.get()), size_}; }

 private:
  std::size_t row_size_;
  std::size_t size_;
  std::unique_ptr<unsigned char[]> bytes_;
};

}  // namespace

void encodePng(const PixelView& pixels, bool gray, int dpi, ByteSink& sink) {
  Compressor compressor(kCompressionLevel);
  const std::string_view packed = compressor.zlib(PackedRows(pixels, gray).bytes());
  sink.write(kSignature);
  writeChunk("IHDR", headerOf(pixels, gray), sink);
  writeChunk("pHYs", densityOf(dpi), sink);
  writeChunk("IDAT", packed, sink);
  writeChunk("IEND", {}, sink);
}

}  // namespace qor
