// Reading files. A report may grow while it is read, so nothing maps it into memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/system/file_stamp.h"

namespace qor {

// What becomes of a link in a file's place: a link is no file that the program has made.
enum class LinkSource { followed, refused };

// A file open for reading, closed with the object.
class InputFile {
 public:
  // Throws FileError with the system's reason. Only regular files can be opened.
  explicit InputFile(const std::string& path, LinkSource link = LinkSource::followed);
  ~InputFile();
  InputFile(InputFile&& other) noexcept;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  InputFile& operator=(InputFile&&) = delete;

  // The size in bytes at this moment.
  std::uint64_t size() const { return stamp().size; }
  FileStamp stamp() const;

  // Whether it is a file of this user, or of the one whose file the other is.
  bool isOfUserOrOwnerOf(const std::string& other) const;

  // Reads up to `count` bytes from `offset` on; fewer only at the end of the file. Throws
  // FileError.
  std::size_t readAt(std::uint64_t offset, char* buffer, std::size_t count) const;

  // All of it. Throws FileError also where it holds more than `limit` bytes, or loses some
  // meanwhile.
  std::string whole(std::uint64_t limit) const;

 private:
  [[noreturn]] void fail() const;  // the last call of the system

  std::string path_;
  int handle_;
};

// True for a regular file; a directory or a device is none.
bool fileExists(const std::string& path);

// The name as it stands, or, where it holds "\" and there is no such file, with "/" in its place.
std::string withSystemSeparators(std::string name);

// The whole file. Throws as InputFile.
std::string loadWholeFile(const std::string& path, std::uint64_t limit);

// The same, or nothing where that throws.
std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t limit,
                                         LinkSource link = LinkSource::followed);

}  // namespace qor
