// Compression by libdeflate.
#include "platform/system/compressor.h"

#include <new>

#include <libdeflate.h>

namespace qor {

Compressor::Compressor(int level) : handle_(libdeflate_alloc_compressor(level)) {
  if (handle_ == nullptr) throw std::bad_alloc();
}

Compressor::~Compressor() {
  libdeflate_free_compressor(handle_);
}

// Not filled: most of it is never touched.
char* Compressor::room(std::size_t size) {
  if (size > size_) buffer_ = std::make_unique_for_overwrite<char[]>(size_ = size);
  return buffer_.get();
}

std::string_view Compressor::deflate(std::string_view bytes) {
  char* const out = room(libdeflate_deflate_compress_bound(handle_, bytes.size()));
  return {out, libdeflate_deflate_compress(handle_, bytes.data(), bytes.size(), out, size_)};
}

std::string_view Compressor::zlib(std::string_view bytes) {
  char* const out = room(libdeflate_zlib_compress_bound(handle_, bytes.size()));
  return {out, libdeflate_zlib_compress(handle_, bytes.data(), bytes.size(), out, size_)};
}

std::uint32_t crc32Of(std::string_view bytes, std::uint32_t before) {
  // The library takes a null pointer for a wish to start anew.
  return bytes.empty() ? before : libdeflate_crc32(before, bytes.data(), bytes.size());
}

}  // namespace qor
