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
// A pipe is opened without waiting for its writer, to see that it is one.
InputFile::InputFile(const std::string& path, LinkSource link)
    : path_(path),
      handle_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY |
                                       (link == LinkSource::refused ? O_NOFOLLOW : 0))) {
  if (handle_ < 0) fail();
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

void InputFile::fail() const {
  throw FileError(path_ + ": " + std::strerror(errno));
}

bool InputFile::isOfUserOrOwnerOf(const std::string& other) const {
  struct stat status {};
  struct stat others {};
  if (::fstat(handle_, &status) != 0) fail();
  return status.st_uid == ::geteuid() ||
         (::stat(other.c_str(), &others) == 0 && status.st_uid == others.st_uid);
}

std::size_t InputFile::readAt(std::uint64_t offset, char* buffer, std::size_t count) const {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got =
        ::pread(handle_, buffer + done, count - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail();
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

std::string InputFile::whole(std::uint64_t limit) const {
  const std::uint64_t size = this->size();
  if (size > limit) throw FileError(path_ + ": larger than " + std::to_string(limit) + " bytes");
  std::string text(size, '\0');
  if (readAt(0, text.data(), text.size()) < size)
    throw FileError(path_ + ": became shorter while it was read");
  return text;
}

std::string loadWholeFile(const std::string& path, std::uint64_t limit) {
  return InputFile(path).whole(limit);
}

std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t limit,
                                         LinkSource link) {
  try {
    return InputFile(path, link).whole(limit);
  } catch (const FileError&) {
    return std::nullopt;
  }
}

}  // namespace qor
