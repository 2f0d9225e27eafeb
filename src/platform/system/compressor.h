// Compression by deflate (RFC 1951), a whole text at a time.
#pragma once

#include <cstdint>
#include <string>
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
  std::string buffer_;
};

// The checksum of ZIP and PNG files.
std::uint32_t crc32Of(std::string_view bytes);

}  // namespace qor
