// Files for reading, on POSIX.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

[[noreturn]] void fail(const std::string& path, int error) {
  throw FileError(path + ": " + std::strerror(error));
}

}  // namespace

InputFile::InputFile(const std::string& path)
    : path_(path), handle_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
  if (handle_ < 0) fail(path, errno);
  struct stat status {};
  const bool regular = ::fstat(handle_, &status) == 0 && S_ISREG(status.st_mode);
  if (regular) return;
  ::close(handle_);
  throw FileError(path + ": not a regular file");
}

InputFile::~InputFile() {
  if (handle_ >= 0) ::close(handle_);
}

InputFile::InputFile(InputFile&& other) noexcept
    : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, -1)) {
}

std::uint64_t InputFile::size() const {
  struct stat status {};
  if (::fstat(handle_, &status) != 0) fail(path_, errno);
  return static_cast<std::uint64_t>(status.st_size);
}

std::size_t InputFile::readAt(std::uint64_t offset, char* buffer, std::size_t count) const {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got =
        ::pread(handle_, buffer + done, count - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail(path_, errno);
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}

bool fileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::string withSystemSeparators(std::string name) {
  if (name.find('\\') != std::string::npos && !fileExists(name))
    std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

std::string loadWholeFile(const std::string& path, std::uint64_t limit) {
  const InputFile file(path);
  const std::uint64_t size = file.size();
  if (size > limit) throw FileError(path + ": larger than " + std::to_string(limit) + " bytes");
  std::string text(size, '\0');
  text.resize(file.readAt(0, text.data(), text.size()));
  return text;
}

std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t limit) {
  try {
    return loadWholeFile(path, limit);
  } catch (const FileError&) {
    return std::nullopt;
  }
}

}  // namespace qor
