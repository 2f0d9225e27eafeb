// Compression by deflate (RFC 1951), a whole text at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

struct libdeflate_compressor;

namespace qor {

class Compressor {
 public:
  // From 1, the fastest, to 12. Throws bad_alloc.
  explicit Compressor(int level);
  ~Compressor();
  Compressor(const Compressor&) = delete;
  Compressor& operator=(const Compressor&) = delete;

  // Bare, or in the frame of zlib (RFC 1950). Good until the next call.
  std::string_view deflate(std::string_view bytes);
  std::string_view zlib(std::string_view bytes);

 private:
  libdeflate_compressor* handle_;
  char* room(std::size_t size);

  std::unique_ptr<char[]> buffer_;
  std::size_t size_ = 0;  // of the buffer
};

// The checksum of ZIP and PNG files; that of bytes before them is gone on with.
std::uint32_t crc32Of(std::string_view bytes, std::uint32_t before = 0);

}  // namespace qor
