// Image objects (ISO 32000-1, 8.9).
#include "platform/pdf/pdf_images.h"

#include <algorithm>

#include "platform/pictures/jpeg_header.h"
#include "platform/pictures/picture.h"
#include "platform/pictures/plain_png.h"

namespace qor {
namespace {

// Gray or red, green, blue as they were before they were multiplied by alpha.
std::string samplesOf(const Picture& picture, bool gray) {
  std::string samples;
  samples.reserve(picture.pixels.size() * (gray ? 1 : 3));
  for (const std::uint32_t pixel : picture.pixels) {
    const std::uint32_t alpha = pixel >> 24;
    const auto add = [&](int shift) {
      const std::uint32_t value = pixel >> shift & 0xFF;
      const std::uint32_t whole =
          alpha == 0xFF || alpha == 0 ? value : std::min(0xFFU, (value * 0xFF + alpha / 2) / alpha);
      samples += static_cast<char>(whole);
    };
    if (!gray) {
      add(16);
      add(8);
    }
    add(0);
  }
  return samples;
}

std::string alphasOf(const Picture& picture) {
  std::string alphas;
  alphas.reserve(picture.pixels.size());
  for (const std::uint32_t pixel : picture.pixels) alphas += static_cast<char>(pixel >> 24);
  return alphas;
}

constexpr const char* kGray = "/DeviceGray";
constexpr const char* kRgb = "/DeviceRGB";

std::string entries(int width, int height, std::string_view colors, int bits = 8) {
  return "/Type/XObject/Subtype/Image/Width " + std::to_string(width) + "/Height " +
         std::to_string(height) + "/BitsPerComponent " + std::to_string(bits) + "/ColorSpace" +
         std::string(colors);
}

std::string colorsOf(const PlainPng& png) {
  if (!png.indexed) return png.samples == 1 ? kGray : kRgb;
  // Pixels may point beyond the palette: they are black, as everywhere.
  const std::size_t colors = std::size_t{1} << png.bits;
  std::string palette(png.palette.substr(0, colors * 3));
  palette.resize(colors * 3);
  return "[/Indexed/DeviceRGB " + std::to_string(colors - 1) + hexText(palette) + "]";
}

// Whether the start of a stream shrinks by more than an eighth.
bool canBePacked(std::string_view stream) {
  constexpr std::size_t kLook = 32768;
  const std::string_view start = stream.substr(0, kLook);
  return Compressor(1).zlib(start).size() < start.size() - start.size() / 8;
}

}  // namespace

const PdfImage* PdfImages::add(const StoredPicture& picture) {
  const auto known = known_.find(picture.key());
  if (known != known_.end()) return &known->second;
  const PdfId object = write(picture);
  if (object == 0) return nullptr;
  return &known_.emplace(picture.key(), PdfImage{object, picture.width(), picture.height()})
              .first->second;
}

// 0 where there is nothing to be written.
PdfId PdfImages::write(const StoredPicture& picture) {
  if (const auto file = picture.jpeg()) return writeJpeg(*file, picture);
  if (const auto file = picture.png()) {
    if (const PdfId object = writePng(*file)) return object;
  }
  const auto pixels = picture.pixels();
  return pixels ? writePixels(*pixels) : 0;
}

PdfId PdfImages::writeJpeg(const std::string& file, const StoredPicture& picture) {
  const PdfId object = file_.reserve();
  const auto header = readJpegHeader(file);
  const bool gray = header && header->components == 1;
  file_.writePlainStream(
      object, entries(picture.width(), picture.height(), gray ? kGray : kRgb) + "/Filter/DCTDecode",
      file);
  return object;
}

// Its rows are compressed as the engine's filter has them (7.4.4.4). 0 where they could be
// compressed better.
PdfId PdfImages::writePng(const std::string& file) {
  const auto png = readPlainPng(file);
  if (!png) return 0;
  std::string data;
  for (const std::string_view piece : png->data) data += piece;
  if (canBePacked(data)) return 0;
  const PdfId object = file_.reserve();
  file_.writePlainStream(object,
                         entries(png->width, png->height, colorsOf(*png), png->bits) +
                             "/Filter/FlateDecode/DecodeParms<</Predictor 15/Colors " +
                             std::to_string(png->samples) + "/BitsPerComponent " +
                             std::to_string(png->bits) + "/Columns " + std::to_string(png->width) +
                             ">>",
                         data);
  return object;
}

PdfId PdfImages::writePixels(const Picture& picture) {
  const bool gray = isGray({picture.width, picture.height, picture.width, picture.pixels.data()});
  std::string extra;
  const bool opaque = std::all_of(picture.pixels.begin(), picture.pixels.end(),
                                  [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; });
  if (!opaque) {
    extra = "/SMask " + pdfReference(file_.addStream(entries(picture.width, picture.height, kGray),
                                                     alphasOf(picture)));
  }
  return file_.addStream(entries(picture.width, picture.height, gray ? kGray : kRgb) + extra,
                         samplesOf(picture, gray));
}

}  // namespace qor
