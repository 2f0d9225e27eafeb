// Unpacking run lengths.
#include "platform/pictures/bmp_runs.h"

#include <algorithm>
#include <utility>

namespace qor {
namespace {

class RunReader {
 public:
  RunReader(const DibHeader& header, std::string_view data)
      : data_(data), nibbles_(header.compression == kDibRle4) {
    width_ = static_cast<std::size_t>(header.width);
    height_ = static_cast<std::size_t>(header.height);
    indices_.reserve(width_ * height_);
  }

  std::optional<std::string> read() {
    while (!ended_ && y_ < height_) {
      if (!take(2)) return std::nullopt;
      const std::size_t count = byte(0);
      if (count > 0) {
        putRun(count);
      } else if (!readEscape(byte(1))) {
        return std::nullopt;
      }
    }
    indices_.resize(width_ * height_);
    return std::move(indices_);
  }

 private:
  bool take(std::size_t size) {
    if (size > data_.size() - at_) return false;
    taken_ = at_;
    at_ += size;
    return true;
  }

  std::size_t byte(std::size_t i) const { return static_cast<unsigned char>(data_[taken_ + i]); }

  // The pixel's index in bytes that hold one or two.
  std::size_t index(std::size_t first, std::size_t pixel) const {
    if (!nibbles_) return byte(first + pixel);
    const std::size_t pair = byte(first + pixel / 2);
    return pixel % 2 == 0 ? pair >> 4 : pair & 0xF;
  }

  void putRun(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) put(nibbles_ ? index(1, i % 2) : byte(1));
  }

  bool readEscape(std::size_t code) {
    switch (code) {
      case 0: return moveTo(0, y_ + 1);
      case 1: return ended_ = true;
      case 2: return take(2) && moveTo(x_ + byte(0), y_ + byte(1));
      default: return readPixels(code);
    }
  }

  bool moveTo(std::size_t x, std::size_t y) {
    x_ = std::min(x, width_);
    y_ = y;
    return true;
  }

  bool readPixels(std::size_t count) {
    const std::size_t size = nibbles_ ? (count + 1) / 2 : count;
    if (!take((size + 1) / 2 * 2)) return false;
    for (std::size_t i = 0; i < count; ++i) put(index(0, i));
    return true;
  }

  void put(std::size_t index) {
    if (x_ >= width_) return;
    if (indices_.size() < (y_ + 1) * width_) indices_.resize((y_ + 1) * width_);
    indices_[y_ * width_ + x_++] = static_cast<char>(index);
  }

  std::string_view data_;
  bool nibbles_;
  std::size_t width_;
  std::size_t height_;
  std::size_t at_ = 0;
  std::size_t taken_ = 0;
  std::size_t x_ = 0;
  std::size_t y_ = 0;
  bool ended_ = false;
  std::string indices_;
};

}  // namespace

std::optional<std::string> unpackRuns(const DibHeader& header, std::string_view data) {
  return RunReader(header, data).read();
}

}  // namespace qor
