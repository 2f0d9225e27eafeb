// Variable-length codes (GIF89a, appendix F).
#include "platform/pictures/gif_lzw.h"

#include <algorithm>
#include <array>
#include <optional>

namespace qor {
namespace {

constexpr int kMostBits = 12;
constexpr int kMostFirstBits = kMostBits - 1;
constexpr std::size_t kMostCodes = std::size_t{1} << kMostBits;

// Codes of growing width out of blocks of bytes.
class CodeReader {
 public:
  explicit CodeReader(std::string_view blocks) : blocks_(blocks) {}

  std::optional<std::size_t> next(int bits) {
    while (held_ < bits) {
      const auto byte = nextByte();
      if (!byte) return std::nullopt;
      bits_ |= std::uint32_t{*byte} << held_;
      held_ += 8;
    }
    const std::size_t code = bits_ & ((1U << bits) - 1);
    bits_ >>= bits;
    held_ -= bits;
    return code;
  }

 private:
  std::optional<std::uint8_t> nextByte() {
    if (left_ == 0) {
      if (blocks_.empty()) return std::nullopt;
      left_ = take();
    }
    if (left_ == 0 || blocks_.empty()) return std::nullopt;
    --left_;
    return take();
  }

  std::uint8_t take() {
    const auto byte = static_cast<std::uint8_t>(blocks_.front());
    blocks_.remove_prefix(1);
    return byte;
  }

  std::string_view blocks_;
  std::size_t left_ = 0;  // of the block
  std::uint32_t bits_ = 0;
  int held_ = 0;
};

// A code stands for pixels that were seen before and one more.
class Unpacker {
 public:
  Unpacker(int firstBits, std::size_t count)
      : first_bits_(firstBits), clear_(std::size_t{1} << firstBits), most_(count) {
    pixels_.reserve(count);
    clear();
  }

  std::vector<std::uint8_t> run(CodeReader reader) {
    while (pixels_.size() < most_) {
      const auto code = reader.next(bits_);
      if (!code || *code == clear_ + 1) break;
      if (*code == clear_) {
        clear();
      } else if (!takeCode(*code)) {
        break;
      }
    }
    return std::move(pixels_);
  }

 private:
  struct Entry {
    std::size_t start = 0;  // where its pixels stand among those written
    std::size_t length = 0;
  };

  void clear() {
    bits_ = first_bits_ + 1;
    codes_ = clear_ + 2;
    last_ = {};
  }

  // False for a code that can't stand here.
  bool takeCode(std::size_t code) {
    const std::size_t start = pixels_.size();
    if (code < clear_) {
      pixels_.push_back(static_cast<std::uint8_t>(code));
    } else if (code < codes_) {
      copy(entries_[code]);
    } else if (code == codes_ && last_.length > 0) {
      copy({last_.start, last_.length + 1});
    } else {
      return false;
    }
    addEntry();
    last_ = {start, pixels_.size() - start};
    return true;
  }

  // The pixels of the code before and the one behind them, which stands there already.
  void addEntry() {
    if (last_.length == 0 || codes_ == kMostCodes) return;
    entries_[codes_++] = {last_.start, last_.length + 1};
    if (codes_ == std::size_t{1} << bits_ && bits_ < kMostBits) ++bits_;
  }

  // Pixels may be among those that are being written.
  void copy(Entry entry) {
    const std::size_t count = std::min(entry.length, most_ - pixels_.size());
    for (std::size_t i = 0; i < count; ++i) pixels_.push_back(pixels_[entry.start + i]);
  }

  int first_bits_;
  std::size_t clear_;
  std::size_t most_;
  int bits_ = 0;
  std::size_t codes_ = 0;  // known so far
  Entry last_;
  std::array<Entry, kMostCodes> entries_{};
  std::vector<std::uint8_t> pixels_;
};

}  // namespace

std::vector<std::uint8_t> unpackGifPixels(std::string_view data, std::size_t count) {
  const int firstBits = data.empty() ? 0 : static_cast<std::uint8_t>(data.front());
  if (firstBits < 1 || firstBits > kMostFirstBits) return {};
  return Unpacker(firstBits, count).run(CodeReader(data.substr(1)));
}

}  // namespace qor
