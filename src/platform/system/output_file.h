// Writing files: beside the target first, and renamed over it only when complete.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/system/byte_sink.h"

namespace qor {

class UnfinishedFile;

// What becomes of a link in the target's place: what it leads to is written, be it there or not, or
// spared: the file then takes the link's place. Only of a name that the user told is a link meant.
enum class LinkTarget { written, spared };

// Whether the disk has the bytes before the target is replaced, or gets them when it likes: for
// files that the next run makes anew.
enum class Flush { toDisk, later };

// A file being written. Until commit() the target stays as it was; an object that is destroyed
// without commit() leaves no trace.
class OutputFile : public ByteSink {
 public:
  // Opens a file beside `target`, or beside what a link there leads to. Where a file that is
  // replaced has further names (hard links), these keep what it was. Throws FileError with the
  // reason, as for links that lead in a circle, and for a target that is a directory or a device.
  explicit OutputFile(const std::string& target, LinkTarget link = LinkTarget::written,
                      Flush flush = Flush::toDisk);
  ~OutputFile() override;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void write(std::string_view bytes) override;

  // Lets a library write by itself, to a C stream that can be put back, where nothing has been
  // written yet. Throws FileError.
  void writeByStream(const std::function<void(std::FILE*)>& write);

  // Where it will stand.
  const std::string& target() const;

  // Writes what is buffered and puts the file in the target's place. Throws FileError.
  void commit();

 private:
  void writeBuffer();
  void writeThrough(std::string_view bytes);

  std::unique_ptr<UnfinishedFile> file_;
  Flush flush_;
  std::string buffer_;
};

}  // namespace qor
