// ZIP archives, part by part (APPNOTE 6.3), always the same for the same parts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/compressor.h"

namespace qor {

class ByteSink;

class ZipWriter {
 public:
  explicit ZipWriter(ByteSink& sink);

  // Adds a file, compressed, or as it is where that makes no sense for its kind.
  void add(const std::string& name, std::string_view bytes);
  void addStored(const std::string& name, std::string_view bytes);

  // Writes the directory of what was added.
  void finish();

 private:
  struct Entry {
    std::string name;
    std::uint32_t crc = 0;
    std::uint64_t size = 0;
    std::uint64_t packedSize = 0;
    std::uint64_t offset = 0;
    bool packed = false;
  };

  void put(Entry entry, std::string_view data);
  void write(std::string_view bytes);

  ByteSink& sink_;
  Compressor for_small_;
  Compressor for_large_;
  std::vector<Entry> entries_;
  std::uint64_t position_ = 0;
};

}  // namespace qor
