// Stamps of files, on POSIX.
#include <sys/stat.h>

#include "platform/system/file_stamp.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

FileStamp stampOf(const struct stat& status) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {status.st_ino, static_cast<std::uint64_t>(status.st_size),
          status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

}  // namespace

std::optional<FileStamp> fileStamp(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return stampOf(status);
}

FileStamp InputFile::stamp() const {
  struct stat status {};
  if (::fstat(handle_, &status) != 0) fail();
  return stampOf(status);
}

}  // namespace qor
