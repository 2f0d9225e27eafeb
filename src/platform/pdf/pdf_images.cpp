// Image objects (ISO 32000-1, 8.9).
#include "platform/pdf/pdf_images.h"

#include <algorithm>

#include "platform/pictures/jpeg_header.h"
#include "platform/pictures/picture.h"

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

std::string entries(int width, int height, bool gray) {
  return "/Type/XObject/Subtype/Image/Width " + std::to_string(width) + "/Height " +
         std::to_string(height) + "/BitsPerComponent 8/ColorSpace/Device" + (gray ? "Gray" : "RGB");
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
  if (const auto file = picture.jpeg()) {
    const PdfId object = file_.reserve();
    const auto header = readJpegHeader(*file);
    const bool gray = header && header->components == 1;
    file_.writePlainStream(
        object, entries(picture.width(), picture.height(), gray) + "/Filter/DCTDecode", *file);
    return object;
  }
  const auto pixels = picture.pixels();
  return pixels ? writePixels(*pixels) : 0;
}

PdfId PdfImages::writePixels(const Picture& picture) {
  const bool gray = isGray({picture.width, picture.height, picture.width, picture.pixels.data()});
  std::string extra;
  const bool opaque = std::all_of(picture.pixels.begin(), picture.pixels.end(),
                                  [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; });
  if (!opaque) {
    extra = "/SMask " + pdfReference(file_.addStream(entries(picture.width, picture.height, true),
                                                     alphasOf(picture)));
  }
  return file_.addStream(entries(picture.width, picture.height, gray) + extra,
                         samplesOf(picture, gray));
}

}  // namespace qor
