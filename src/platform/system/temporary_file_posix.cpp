// Temporary files, on POSIX.
#include <fcntl.h>
#include <unistd.h>

#include "platform/system/temporary_file.h"
#include "platform/system/whole_file.h"

namespace qor {

TemporaryFile::TemporaryFile(const std::string& name)
    : path_(place_.path(name)),
      directory_(::open(place_.path("").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
  const HeldSignals held;
  fillFile(path_, {});
  name_.emplace(directory_, name);
}

TemporaryFile::~TemporaryFile() {
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
