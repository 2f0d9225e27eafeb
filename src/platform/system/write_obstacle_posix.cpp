// What stands in the way of writing a file, on POSIX.
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/path.h"
#include "platform/system/directory.h"
#include "platform/system/write_obstacle.h"

namespace qor {
namespace {

// By the rights that the process acts with.
WriteObstacle refusal(const char* path, int rights) {
  const bool granted = ::faccessat(AT_FDCWD, path, rights, AT_EACCESS) == 0;
  return granted ? WriteObstacle::none : WriteObstacle::noPermission;
}

// Of a file that isn't there yet.
WriteObstacle obstacleToNewFile(const std::string& path) {
  const std::string told(directoryOf(path));
  const std::string directory = told.empty() ? "." : told;
  if (!isDirectory(directory)) return WriteObstacle::noDirectory;
  return refusal(directory.c_str(), W_OK | X_OK);
}

}  // namespace

WriteObstacle obstacleTo(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    if (errno == ENAMETOOLONG) return WriteObstacle::tooLong;
    const bool absent = errno == ENOENT || errno == ENOTDIR;
    return absent ? obstacleToNewFile(path) : WriteObstacle::noPermission;
  }
  if (S_ISDIR(status.st_mode)) return WriteObstacle::directory;
  if (!S_ISREG(status.st_mode)) return WriteObstacle::notRegular;
  const WriteObstacle obstacle = refusal(path.c_str(), W_OK);
  return obstacle == WriteObstacle::none ? obstacleToNewFile(path) : obstacle;
}

}  // namespace qor
