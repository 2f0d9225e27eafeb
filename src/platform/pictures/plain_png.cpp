// The chunks of a PNG file (ISO/IEC 15948, 5.3 and 11.2).
#include "platform/pictures/plain_png.h"

#include <utility>

#include "platform/pictures/picture_codecs.h"

namespace qor {
namespace {

constexpr std::size_t kSignature = 8;
constexpr std::size_t kChunkFrame = 12;  // length and type before the data, a sum behind it
constexpr std::size_t kHeaderSize = 13;

enum ColorType { kGray = 0, kRgb = 2, kPalette = 3 };

// False where the data can't be shown as it stands.
bool takeHeader(std::string_view header, PlainPng& png) {
  if (header.size() != kHeaderSize) return false;
  const int type = static_cast<unsigned char>(header[9]);
  const bool interlaced = header[12] != 0;
  png.width = static_cast<int>(bigEndian(header, 0));
  png.height = static_cast<int>(bigEndian(header, 4));
  png.bits = static_cast<unsigned char>(header[8]);
  png.samples = type == kRgb ? 3 : 1;
  png.indexed = type == kPalette;
  return (type == kGray || type == kRgb || type == kPalette) && !interlaced && png.bits > 0 &&
         png.bits <= 8;
}

}  // namespace

std::optional<PlainPng> readPlainPng(std::string_view file) {
  if (!isPng(file)) return std::nullopt;
  PlainPng png;
  file.remove_prefix(kSignature);
  while (file.size() >= kChunkFrame) {
    const auto length = static_cast<std::size_t>(bigEndian(file, 0));
    if (length > file.size() - kChunkFrame) return std::nullopt;
    const std::string_view type = file.substr(4, 4);
    const std::string_view data = file.substr(8, length);
    if (type == "IHDR" && !takeHeader(data, png)) return std::nullopt;
    if (type == "tRNS") return std::nullopt;
    if (type == "PLTE") png.palette = data;
    if (type == "IDAT") png.data.push_back(data);
    file.remove_prefix(length + kChunkFrame);
  }
  return png.data.empty() ? std::nullopt : std::optional(std::move(png));
}

}  // namespace qor
