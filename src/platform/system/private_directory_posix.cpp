// Directories of a run, on POSIX.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/path.h"
#include "platform/system/directory.h"
#include "platform/system/private_directory.h"

namespace qor {

PrivateDirectory::PrivateDirectory() : path_(temporaryDirectory() + "/.qor-XXXXXX") {
  const HeldSignals held;
  if (::mkdtemp(path_.data()) == nullptr)
    throw FileError(path_ + ": " + std::strerror(errno), ErrorKind::cannotWrite);
  parent_ = ::open(temporaryDirectory().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  name_.emplace(parent_, std::string(fileNameOf(path_)), UnfinishedKind::directory);
}

PrivateDirectory::~PrivateDirectory() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
  name_.reset();
  ::close(parent_);
}

std::string PrivateDirectory::path(std::string_view name) const {
  return path_ + "/" + std::string(name);
}

}  // namespace qor
