#include "support/image_magick.h"

#include <cstdlib>
#include <functional>
#include <numeric>
#include <stdexcept>

namespace qor::test {

void ImageMagick::run(const std::string& command) const {
  const std::string line = "cd '" + folder_.path() + "' && " + command;
  if (std::system(line.c_str()) != 0) throw std::runtime_error(command);
}

std::string ImageMagick::make(const std::string& arguments, const std::string& file) const {
  run("convert-im6.q16 -seed 5 -size 37x23 plasma:tomato-steelblue " + arguments + " " + file);
  return folder_.read(nameOf(file));
}

std::vector<std::uint32_t> ImageMagick::seen(const std::string& file) const {
  run("convert-im6.q16 '" + file +
      "' -background none -layers flatten -colorspace sRGB -depth 8 RGBA:seen");
  const std::string bytes = folder_.read("seen");
  std::vector<std::uint32_t> pixels(bytes.size() / 4);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const auto byte = [&](std::size_t at) -> unsigned {
      return static_cast<unsigned char>(bytes[i * 4 + at]);
    };
    const auto part = [&](std::size_t at) { return (byte(at) * byte(3) * 2 + 255) / 510; };
    pixels[i] = byte(3) << 24 | part(0) << 16 | part(1) << 8 | part(2);
  }
  return pixels;
}

std::string ImageMagick::identify(const std::string& format, const std::string& file) const {
  run("identify-im6.q16 -units PixelsPerInch -format '" + format + "' '" + file + "' > said");
  return folder_.read("said");
}

std::string nameOf(const std::string& file) {
  return file.substr(file.find(':') + 1);
}

double distance(std::span<const std::uint32_t> left, std::span<const std::uint32_t> right) {
  if (left.size() != right.size() || left.empty()) return 1000;
  const auto bytes = std::as_bytes(left);
  const auto apart = [](std::byte a, std::byte b) { return std::abs(int(a) - int(b)); };
  return std::transform_reduce(bytes.begin(), bytes.end(), std::as_bytes(right).begin(), 0.0,
                               std::plus(), apart) /
         static_cast<double>(bytes.size());
}

}  // namespace qor::test
