// Whole files, on POSIX.
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/system/whole_file.h"

namespace qor {
namespace {

[[noreturn]] void fail(const std::string& what, ErrorKind kind) {
  throw FileError(what + ": " + std::strerror(errno), kind);
}

// A file that is written, closed with the object.
class Target {
 public:
  explicit Target(const std::string& file)
      : number(::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
    if (number < 0) fail(file, ErrorKind::cannotWrite);
  }
  ~Target() { ::close(number); }
  Target(const Target&) = delete;
  Target& operator=(const Target&) = delete;

  const int number;
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

void fillFile(const std::string& file, std::string_view text) {
  writeAll(Target(file).number, file, text);
}

void fillFromInput(const std::string& file) {
  copyAll(STDIN_FILENO, "standard input", Target(file).number, file);
}

OutputSource::OutputSource(std::string file)
    : file_(std::move(file)), handle_(::open(file_.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (handle_ < 0) fail(file_, ErrorKind::cannotRead);
}

OutputSource::~OutputSource() {
  ::close(handle_);
}

void OutputSource::giveToOutput() const {
  copyAll(handle_, file_, STDOUT_FILENO, "standard output");
}

}  // namespace qor
