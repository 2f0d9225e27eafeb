// Directories of a run, on POSIX.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "base/errors.h"
#include "platform/system/directory.h"
#include "platform/system/private_directory.h"

namespace qor {

PrivateDirectory::PrivateDirectory() : path_(temporaryDirectory() + "/.qor-XXXXXX") {
  if (::mkdtemp(path_.data()) == nullptr)
    throw FileError(path_ + ": " + std::strerror(errno), ErrorKind::cannotWrite);
}

PrivateDirectory::~PrivateDirectory() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

std::string PrivateDirectory::path(std::string_view name) const {
  return path_ + "/" + std::string(name);
}

}  // namespace qor
