// Writing files: beside the target first, and renamed over it only when complete.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "platform/system/byte_sink.h"

namespace qor {

// What becomes of a link in the target's place.
enum class LinkTarget { written, spared };

// A file being written. Until commit() the target stays as it was; an object that is destroyed
// without commit() leaves no trace.
class OutputFile : public ByteSink {
 public:
  // Opens a file beside `target`, or beside where a link leads, unless that is to be spared: the
  // file then takes the link's place. Throws FileError with the reason, and for a target that is a
  // directory or a device.
  explicit OutputFile(const std::string& target, LinkTarget link = LinkTarget::written);
  ~OutputFile() override;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void write(std::string_view bytes) override;

  // Lets a library write by itself, to a C stream that can be put back, where nothing has been
  // written yet. Throws FileError.
  void writeByStream(const std::function<void(std::FILE*)>& write);

  const std::string& target() const { return target_; }

  // Writes what is buffered and puts the file in the target's place. Throws FileError.
  void commit();

 private:
  void flush();
  void writeThrough(std::string_view bytes);

  std::string target_;
  std::string temporary_;
  std::string buffer_;
  int handle_ = -1;
};

}  // namespace qor
