// Spools, on POSIX.
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/path.h"
#include "platform/system/spool_file.h"

namespace qor {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

[[noreturn]] void fail(const std::string& path) {
  throw FileError(path + ": " + std::strerror(errno), ErrorKind::cannotWrite);
}

// A file without a name or, where the file system has none, one that loses its name at once.
int openNameless(const std::string& directory) {
  const int handle = ::open(directory.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
  if (handle >= 0) return handle;
  std::string name = directory + ".qor-XXXXXX";
  const int named = ::mkostemp(name.data(), O_CLOEXEC);
  if (named >= 0) ::unlink(name.c_str());
  return named;
}

}  // namespace

SpoolFile::SpoolFile(const std::string& beside) : beside_(beside) {
  const std::string directory(directoryOf(beside));
  handle_ = openNameless(directory.empty() ? "./" : directory);
  if (handle_ < 0) fail(beside_);
}

SpoolFile::~SpoolFile() {
  ::close(handle_);
}

void SpoolFile::write(std::string_view bytes) {
  size_ += bytes.size();
  buffer_ += bytes;
  if (buffer_.size() >= kBufferSize) flush();
}

void SpoolFile::flush() {
  std::string_view rest = buffer_;
  while (!rest.empty()) {
    const ssize_t done = ::write(handle_, rest.data(), rest.size());
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) fail(beside_);
    rest.remove_prefix(static_cast<std::size_t>(done));
  }
  buffer_.clear();
}

void SpoolFile::copyTo(ByteSink& sink, std::uint64_t from) {
  flush();
  std::array<char, kBufferSize> bytes;
  for (std::uint64_t place = from; place < size_;) {
    const ssize_t read = ::pread(handle_, bytes.data(), bytes.size(), static_cast<off_t>(place));
    if (read < 0 && errno == EINTR) continue;
    if (read <= 0) fail(beside_);
    sink.write({bytes.data(), static_cast<std::size_t>(read)});
    place += static_cast<std::uint64_t>(read);
  }
}

}  // namespace qor
