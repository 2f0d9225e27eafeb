// Files for writing, on POSIX.
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/path.h"
#include "platform/system/output_file.h"

namespace qor {
namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

[[noreturn]] void fail(const std::string& path, int error) {
  throw FileError(path + ": " + std::strerror(error), ErrorKind::cannotWrite);
}

// The file that a symbolic link leads to: the link itself is to stay.
std::string followLink(const std::string& path) {
  char resolved[PATH_MAX];
  return ::realpath(path.c_str(), resolved) == nullptr ? path : std::string(resolved);
}

// The mode of the file that will be replaced. Throws where it is none that can be replaced.
std::optional<mode_t> modeOfTarget(const std::string& target) {
  struct stat status {};
  if (::stat(target.c_str(), &status) != 0) return std::nullopt;
  if (S_ISDIR(status.st_mode)) fail(target, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw FileError(target + ": not a regular file", ErrorKind::cannotWrite);
  if (::access(target.c_str(), W_OK) != 0) fail(target, errno);
  return status.st_mode & 07777U;
}

// A short name of its own, so that a target of the greatest length leaves room for it.
std::string temporaryName(const std::string& target) {
  static unsigned counter = 0;
  return std::string(directoryOf(target)) + ".qor-" + std::to_string(::getpid()) + "-" +
         std::to_string(counter++) + ".tmp";
}

}  // namespace

OutputFile::OutputFile(const std::string& target, LinkTarget link)
    : target_(link == LinkTarget::written ? followLink(target) : target) {
  const auto mode = modeOfTarget(target_);
  do {
    temporary_ = temporaryName(target_);
    handle_ = ::open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  } while (handle_ < 0 && errno == EEXIST);
  if (handle_ < 0) fail(target, errno);
  if (mode) ::fchmod(handle_, *mode);
  buffer_.reserve(kBufferSize);
}

OutputFile::~OutputFile() {
  if (handle_ >= 0) ::close(handle_);
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void OutputFile::write(std::string_view bytes) {
  if (buffer_.size() + bytes.size() > kBufferSize) flush();
  if (bytes.size() >= kBufferSize) {
    writeThrough(bytes);
  } else {
    buffer_.append(bytes);
  }
}

void OutputFile::flush() {
  writeThrough(buffer_);
  buffer_.clear();
}

void OutputFile::writeThrough(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = ::write(handle_, bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) fail(target_, errno);
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
}

void OutputFile::writeByStream(const std::function<void(std::FILE*)>& write) {
  const auto close = [](std::FILE* stream) { return std::fclose(stream); };
  const int handle = ::fcntl(handle_, F_DUPFD_CLOEXEC, 0);
  if (handle < 0) fail(target_, errno);
  std::unique_ptr<std::FILE, decltype(close)> stream(::fdopen(handle, "wb"), close);
  if (!stream) fail(target_, errno);
  write(stream.get());
  if (std::fclose(stream.release()) != 0) fail(target_, errno);
}

void OutputFile::commit() {
  flush();
  if (::close(std::exchange(handle_, -1)) != 0) fail(target_, errno);
  if (::rename(temporary_.c_str(), target_.c_str()) != 0) fail(target_, errno);
  temporary_.clear();
}

}  // namespace qor
