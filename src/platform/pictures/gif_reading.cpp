// GIF files, read: the first image. Own code, because giflib gives up where others still see
// something.
#include <algorithm>

#include "platform/pictures/gif_lzw.h"
#include "platform/pictures/picture_codecs.h"

namespace qor {
namespace {

constexpr std::size_t kScreenSize = 13;  // signature and description of the screen
constexpr std::size_t kImageSize = 9;    // behind its mark
constexpr char kImageMark = ',';
constexpr char kExtensionMark = '!';
constexpr std::uint8_t kControlLabel = 0xF9;
constexpr std::uint8_t kHasPalette = 0x80;
constexpr std::uint8_t kInterlaced = 0x40;

using Palette = std::array<std::uint32_t, 256>;

struct GifImage {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool interlaced = false;
};

class GifReader {
 public:
  explicit GifReader(std::string_view file) : size_(file.size()), rest_(file) {}

  std::optional<Picture> read() {
    if (rest_.size() < kScreenSize) return std::nullopt;
    screen_width_ = word(6);
    screen_height_ = word(8);
    const std::uint8_t flags = byte(10);
    rest_.remove_prefix(kScreenSize);
    if (!takePalette(flags) || !findImage() || !takeImage() || !has_palette_) return std::nullopt;
    if (transparent_ >= 0) palette_[static_cast<std::size_t>(transparent_)] = 0;
    return place();
  }

 private:
  std::uint8_t byte(std::size_t at) const { return static_cast<std::uint8_t>(rest_[at]); }
  int word(std::size_t at) const { return static_cast<int>(littleEndian(rest_, at, 2)); }

  // The palette that the flags tell of, if they do. The image's own one replaces that of the
  // screen.
  bool takePalette(std::uint8_t flags) {
    if ((flags & kHasPalette) == 0) return true;
    const std::size_t count = std::size_t{2} << (flags & 7);
    if (rest_.size() < count * 3) return false;
    palette_.fill(0xFF000000);
    for (std::size_t i = 0; i < count; ++i) {
      palette_[i] |=
          std::uint32_t{byte(i * 3)} << 16 | std::uint32_t{byte(i * 3 + 1)} << 8 | byte(i * 3 + 2);
    }
    rest_.remove_prefix(count * 3);
    return has_palette_ = true;
  }

  // Goes behind the mark of the first image.
  bool findImage() {
    while (!rest_.empty()) {
      const char mark = rest_.front();
      rest_.remove_prefix(1);
      if (mark == kImageMark) return true;
      if (mark != kExtensionMark || !skipExtension()) return false;
    }
    return false;
  }

  // The number of the transparent colour is taken out of the extension that has it.
  bool skipExtension() {
    if (rest_.empty()) return false;
    const std::uint8_t label = byte(0);
    rest_.remove_prefix(1);
    while (!rest_.empty()) {
      const std::size_t size = byte(0);
      if (size >= rest_.size()) return false;
      if (label == kControlLabel && size == 4) transparent_ = (byte(1) & 1) != 0 ? byte(4) : -1;
      rest_.remove_prefix(size + 1);
      if (size == 0) return true;
    }
    return false;
  }

  bool takeImage() {
    if (rest_.size() < kImageSize) return false;
    const std::uint8_t flags = byte(8);
    image_ = {word(0), word(2), word(4), word(6), (flags & kInterlaced) != 0};
    rest_.remove_prefix(kImageSize);
    return takePalette(flags) && image_.width > 0 && image_.height > 0;
  }

  // The row of each line of the file.
  std::vector<int> lineOrder() const {
    struct Pass {
      int first, step;
    };
    constexpr std::array<Pass, 4> kPasses{{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};
    constexpr std::array<Pass, 1> kOnePass{{{0, 1}}};
    std::vector<int> order;
    const auto passes =
        image_.interlaced ? std::span<const Pass>(kPasses) : std::span<const Pass>(kOnePass);
    for (const Pass& pass : passes) {
      for (int y = pass.first; y < image_.height; y += pass.step) order.push_back(y);
    }
    return order;
  }

  // Puts the image on its screen, which is transparent where the image isn't. An image that goes
  // beyond its screen makes the screen larger.
  std::optional<Picture> place() const {
    const int width = std::max(screen_width_, image_.left + image_.width);
    const int height = std::max(screen_height_, image_.top + image_.height);
    if (!fitsPicture(width, height)) return std::nullopt;
    const auto lineSize = static_cast<std::size_t>(image_.width);
    const std::size_t count = lineSize * static_cast<std::size_t>(image_.height);
    const auto pixels = unpackGifPixels(rest_, count);
    if (pixels.empty()) return std::nullopt;
    Picture picture{width, height, {}, pixels.size() == count};
    if (!picture.whole && !canBePartOf(size_, width, height)) return std::nullopt;
    const auto stride = static_cast<std::size_t>(width);
    picture.pixels.resize(stride * static_cast<std::size_t>(height));
    std::size_t from = 0;
    for (const int y : lineOrder()) {
      const std::size_t size = std::min(lineSize, pixels.size() - from);
      std::uint32_t* const to = &picture.pixels[static_cast<std::size_t>(image_.top + y) * stride +
                                                static_cast<std::size_t>(image_.left)];
      std::transform(&pixels[from], &pixels[from] + size, to,
                     [this](std::uint8_t index) { return palette_[index]; });
      from += size;
      if (from == pixels.size()) break;
    }
    return picture;
  }

  std::size_t size_;
  std::string_view rest_;
  int screen_width_ = 0;
  int screen_height_ = 0;
  bool has_palette_ = false;
  Palette palette_{};
  int transparent_ = -1;
  GifImage image_;
};

}  // namespace

bool isGif(std::string_view file) {
  return file.starts_with("GIF87a") || file.starts_with("GIF89a");
}

std::optional<Picture> decodeGif(std::string_view file) {
  return GifReader(file).read();
}

}  // namespace qor
