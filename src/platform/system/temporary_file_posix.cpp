// Temporary files, on POSIX.
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/path.h"
#include "platform/system/directory.h"
#include "platform/system/temporary_file.h"
#include "platform/system/whole_file.h"

namespace qor {

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
    throw FileError(path_ + ": " + std::strerror(error), ErrorKind::cannotWrite);
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
  fillFile(path_, text);
}

void TemporaryFile::takeInput() const {
  fillFromInput(path_);
}

void TemporaryFile::giveToOutput() const {
  OutputSource(path_).giveToOutput();
}

}  // namespace qor
