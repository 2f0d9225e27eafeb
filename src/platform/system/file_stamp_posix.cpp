// Stamps of files, on POSIX.
#include <algorithm>

#include <sys/stat.h>

#include "platform/system/file_stamp.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

std::int64_t nanoseconds(const timespec& time) {
  return time.tv_sec * 1'000'000'000 + time.tv_nsec;
}

FileStamp stampOf(const struct stat& status) {
  return {status.st_ino, static_cast<std::uint64_t>(status.st_size), nanoseconds(status.st_mtim)};
}

}  // namespace

std::optional<FileStamp> fileStamp(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return stampOf(status);
}

std::optional<std::int64_t> lastChange(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return std::max(nanoseconds(status.st_mtim), nanoseconds(status.st_ctim));
}

FileStamp InputFile::stamp() const {
  struct stat status {};
  if (::fstat(handle_, &status) != 0) fail();
  return stampOf(status);
}

}  // namespace qor
