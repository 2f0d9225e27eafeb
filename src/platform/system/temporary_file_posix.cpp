// Temporary files, on POSIX.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/path.h"
#include "platform/system/temporary_file.h"

namespace qor {
namespace {

std::string temporaryDirectory() {
  const char* named = std::getenv("TMPDIR");
  return named == nullptr || *named == 0 ? "/tmp" : named;
}

[[noreturn]] void fail(const std::string& what, ErrorKind kind) {
  throw FileError(what + ": " + std::strerror(errno), kind);
}

// A descriptor, closed with the object.
struct Handle {
  explicit Handle(int opened) : number(opened) {}
  ~Handle() { ::close(number); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  int number;
};

void writeAll(int to, const std::string& target, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(to, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) fail(target, ErrorKind::cannotWrite);
    bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
  }
}

// All that is left to read, to where it is to go.
void copyAll(int from, const std::string& source, int to, const std::string& target) {
  std::vector<char> buffer(std::size_t{1} << 18U);
  for (;;) {
    const ssize_t count = ::read(from, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(source, ErrorKind::cannotRead);
    if (count == 0) return;
    writeAll(to, target, {buffer.data(), static_cast<std::size_t>(count)});
  }
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& suffix) {
  const std::string directory = temporaryDirectory();
  path_ = directory + "/.qor-XXXXXX" + suffix;
  directory_ = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const HeldSignals held;
  const int file =
      directory_ < 0 ? -1 : ::mkostemps(path_.data(), static_cast<int>(suffix.size()), O_CLOEXEC);
  if (file < 0) {
    const int error = errno;
    if (directory_ >= 0) ::close(directory_);
    errno = error;
    fail(path_, ErrorKind::cannotWrite);
  }
  ::close(file);
  name_.emplace(directory_, std::string(fileNameOf(path_)));
}

TemporaryFile::~TemporaryFile() {
  ::unlink(path_.c_str());
  name_.reset();
  ::close(directory_);
}

void TemporaryFile::fill(std::string_view text) const {
  const Handle file(::open(path_.c_str(), O_WRONLY | O_CLOEXEC));
  writeAll(file.number, path_, text);
}

void TemporaryFile::takeInput() const {
  const Handle file(::open(path_.c_str(), O_WRONLY | O_CLOEXEC));
  copyAll(STDIN_FILENO, "standard input", file.number, path_);
}

void TemporaryFile::giveToOutput() const {
  const Handle file(::open(path_.c_str(), O_RDONLY | O_CLOEXEC));
  copyAll(file.number, path_, STDOUT_FILENO, "standard output");
}

}  // namespace qor
