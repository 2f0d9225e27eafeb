// Compression by libdeflate.
#include "platform/system/compressor.h"

#include <algorithm>
#include <new>

#include <libdeflate.h>

namespace qor {

Compressor::Compressor(int level) : handle_(libdeflate_alloc_compressor(level)) {
  if (handle_ == nullptr) throw std::bad_alloc();
}

Compressor::~Compressor() {
  libdeflate_free_compressor(handle_);
}

std::string_view Compressor::deflate(std::string_view bytes) {
  buffer_.resize(
      std::max(buffer_.size(), libdeflate_deflate_compress_bound(handle_, bytes.size())));
  return {buffer_.data(), libdeflate_deflate_compress(handle_, bytes.data(), bytes.size(),
                                                      buffer_.data(), buffer_.size())};
}

std::string_view Compressor::zlib(std::string_view bytes) {
  buffer_.resize(std::max(buffer_.size(), libdeflate_zlib_compress_bound(handle_, bytes.size())));
  return {buffer_.data(), libdeflate_zlib_compress(handle_, bytes.data(), bytes.size(),
                                                   buffer_.data(), buffer_.size())};
}

std::uint32_t crc32Of(std::string_view bytes) {
  return libdeflate_crc32(0, bytes.data(), bytes.size());
}

}  // namespace qor
