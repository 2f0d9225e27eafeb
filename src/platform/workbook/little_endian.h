// Records of numbers whose lowest byte comes first.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace qor {

class LittleEndian {
 public:
  LittleEndian& u8(std::uint32_t value) { return number<1>(value); }
  LittleEndian& u16(std::uint32_t value) { return number<2>(value); }
  LittleEndian& u32(std::uint64_t value) { return number<4>(value); }
  LittleEndian& u64(std::uint64_t value) { return number<8>(value); }
  LittleEndian& real(double value) { return u64(std::bit_cast<std::uint64_t>(value)); }
  LittleEndian& text(std::string_view bytes) {
    bytes_ += bytes;
    return *this;
  }
  LittleEndian& zeros(std::size_t count) {
    bytes_.append(count, '\0');
    return *this;
  }

  const std::string& bytes() const { return bytes_; }
  std::size_t size() const { return bytes_.size(); }
  void clear() { bytes_.clear(); }

 private:
  template <int size>
  LittleEndian& number(std::uint64_t value) {
    char digits[size];
    for (int i = 0; i < size; ++i) digits[i] = static_cast<char>(value >> (8 * i));
    bytes_.append(digits, size);
    return *this;
  }

  std::string bytes_;
};

}  // namespace qor
