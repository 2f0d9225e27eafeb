// Places for files, on POSIX.
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/system/file_place.h"

namespace qor {
namespace {

constexpr int kMostLinks = 40;  // as the kernel follows

[[noreturn]] void failAt(const std::string& path, int error) {
  throw FileError(path + ": " + std::strerror(error), ErrorKind::cannotWrite);
}

}  // namespace

FilePlace::FilePlace(const std::string& path) : path_(path), name_(path.rfind('/') + 1) {
  const std::string directory = name_ == 0 ? "." : path.substr(0, name_);
  directory_ = ::open(directory.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (directory_ < 0) fail(errno);
}

FilePlace::~FilePlace() {
  ::close(directory_);
}

void FilePlace::fail(int error) const {
  failAt(path_, error);
}

std::string endOfLinks(std::string path) {
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    const std::filesystem::path way = std::filesystem::read_symlink(path, error);
    if (error) return path;
    path = (std::filesystem::path(path).parent_path() / way).string();
  }
  failAt(path, ELOOP);
}

}  // namespace qor
