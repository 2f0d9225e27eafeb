// Image objects (ISO 32000-1, 8.9).
#include "platform/pdf/pdf_images.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace qor {
namespace {

// Two hashes with nothing in common: the library's, and a sum that depends on places.
std::string keyOf(std::string_view bytes) {
  std::uint64_t sum = 0;
  for (const char byte : bytes) sum = sum * 1099511628211ULL + static_cast<unsigned char>(byte);
  return std::to_string(bytes.size()) + "-" + std::to_string(std::hash<std::string_view>()(bytes)) +
         "-" + std::to_string(sum);
}

// The number of colours of a JPEG, told by the header of its frame.
std::optional<int> jpegComponents(std::string_view bytes) {
  constexpr std::size_t kSignature = 2;
  for (std::size_t at = kSignature; at + 9 < bytes.size();) {
    const auto byte = [&bytes, at](std::size_t i) {
      return static_cast<unsigned char>(bytes[at + i]);
    };
    if (byte(0) != 0xFF) return std::nullopt;
    const int marker = byte(1);
    const bool isFrame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    if (isFrame) return byte(4) == 8 ? std::optional<int>(byte(9)) : std::nullopt;
    at += marker == 0xFF ? 1 : 2 + static_cast<std::size_t>(byte(2) << 8 | byte(3));
  }
  return std::nullopt;
}

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

const PdfImage* PdfImages::add(std::string_view bytes) {
  const std::string key = keyOf(bytes);
  const auto known = known_.find(key);
  if (known != known_.end()) return &known->second;
  const auto picture = decodePicture(bytes);
  if (!picture) return nullptr;
  return &known_.emplace(key, write(bytes, *picture)).first->second;
}

PdfImage PdfImages::write(std::string_view bytes, const Picture& picture) {
  PdfImage image{0, picture.width, picture.height};
  const bool isJpeg = bytes.starts_with("\xFF\xD8");
  const auto components = isJpeg ? jpegComponents(bytes) : std::nullopt;
  if (components == 1 || components == 3) {
    image.object = file_.reserve();
    file_.writePlainStream(
        image.object, entries(image.width, image.height, components == 1) + "/Filter/DCTDecode",
        bytes);
  } else {
    image.object = writePixels(picture);
  }
  return image;
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
