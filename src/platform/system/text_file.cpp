// Texts of files.
#include "platform/system/text_file.h"

#include <algorithm>

#include "platform/system/text_encoding.h"

namespace qor {
namespace {

// One byte order of UTF-16.
class Utf16Reader {
 public:
  Utf16Reader(std::string_view bytes, bool bigEndian) : bytes_(bytes), big_endian_(bigEndian) {}

  std::string utf8() {
    std::string text;
    while (place_ + 1 < bytes_.size()) appendUtf8(text, next());
    return text;
  }

 private:
  static constexpr char32_t kReplacement = 0xFFFD;

  char32_t unitAt(std::size_t place) const {
    const auto byte = [&](std::size_t i) {
      return static_cast<char32_t>(static_cast<unsigned char>(bytes_[place + i]));
    };
    return big_endian_ ? byte(0) << 8 | byte(1) : byte(1) << 8 | byte(0);
  }

  char32_t next() {
    const char32_t unit = unitAt(place_);
    place_ += 2;
    if (unit < 0xD800 || unit > 0xDFFF) return unit;
    const bool pair = unit < 0xDC00 && place_ + 1 < bytes_.size();
    const char32_t low = pair ? unitAt(place_) : 0;
    if (low < 0xDC00 || low > 0xDFFF) return kReplacement;
    place_ += 2;
    return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
  }

  std::string_view bytes_;
  bool big_endian_;
  std::size_t place_ = 0;
};

}  // namespace

std::optional<std::string> utf8ByMark(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) return std::string(bytes.substr(3));
  if (bytes.starts_with("\xFF\xFE")) return Utf16Reader(bytes.substr(2), false).utf8();
  if (bytes.starts_with("\xFE\xFF")) return Utf16Reader(bytes.substr(2), true).utf8();
  return std::nullopt;
}

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    lines.emplace_back(line);
    text.remove_prefix(line.size());
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
  }
  return lines;
}

}  // namespace qor
