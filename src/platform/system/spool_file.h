// What is too large for memory and is read again once: a file that nobody sees.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/system/byte_sink.h"

namespace qor {

// It is gone with the object, however the run ends.
class SpoolFile : public ByteSink {
 public:
  // In the directory of that path, where what comes of it will need the room as well. Throws
  // FileError.
  explicit SpoolFile(const std::string& beside);
  ~SpoolFile() override;
  SpoolFile(const SpoolFile&) = delete;
  SpoolFile& operator=(const SpoolFile&) = delete;

  void write(std::string_view bytes) override;
  std::uint64_t size() const { return size_; }

  // Writes its bytes, from this place on, to another sink. Throws what that throws, and FileError.
  void copyTo(ByteSink& sink, std::uint64_t from = 0);

 private:
  void flush();

  std::string beside_;
  std::string buffer_;
  std::uint64_t size_ = 0;
  int handle_ = -1;
};

}  // namespace qor
