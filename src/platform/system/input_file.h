// Reading files. A report may grow while it is read, so nothing maps it into memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qor {

// A file open for reading, closed with the object.
class InputFile {
 public:
  // Throws FileError with the system's reason. Only regular files can be opened.
  explicit InputFile(const std::string& path);
  ~InputFile();
  InputFile(InputFile&& other) noexcept;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  InputFile& operator=(InputFile&&) = delete;

  // The size in bytes at this moment.
  std::uint64_t size() const;

  // Reads up to `count` bytes from `offset` on; fewer only at the end of the file. Throws
  // FileError.
  std::size_t readAt(std::uint64_t offset, char* buffer, std::size_t count) const;

 private:
  std::string path_;
  int handle_;
};

// True for a regular file; a directory or a device is none.
bool fileExists(const std::string& path);

// The name as it stands, or, where it holds "\" and there is no such file, with "/" in its place.
std::string withSystemSeparators(std::string name);

// The whole file. Throws FileError where it can't be read or holds more than `limit` bytes.
std::string loadWholeFile(const std::string& path, std::uint64_t limit);

// The same, or nothing where that throws.
std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t limit);

}  // namespace qor
