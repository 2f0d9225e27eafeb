// What tells whether a file is still the same one in the same state.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qor {

struct FileStamp {
  std::uint64_t file = 0;     // number in its file system
  std::uint64_t size = 0;     // bytes
  std::int64_t modified = 0;  // ns since 1970

  bool operator==(const FileStamp&) const = default;
};

// Nothing where there is no such file.
std::optional<FileStamp> fileStamp(const std::string& path);

// The last change of a file's contents, or of its name or rights, in ns since 1970.
std::optional<std::int64_t> lastChange(const std::string& path);

}  // namespace qor
