// Unfinished files, on POSIX.
#include <cerrno>
#include <cstdio>
#include <optional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/path.h"
#include "platform/system/unfinished_file.h"

namespace qor {
namespace {

constexpr mode_t kNewFile = 0666;
constexpr int kMostWriters = 1000;  // of one target at a time

// The rights to the file that will be replaced; nothing where there is none or a link.
std::optional<mode_t> modeOf(const FilePlace& target) {
  struct stat status {};
  constexpr int kFlags = AT_SYMLINK_NOFOLLOW | AT_EMPTY_PATH;
  if (::fstatat(target.directory(), target.name(), &status, kFlags) != 0) {
    if (errno != ENOENT) target.fail(errno);
    return std::nullopt;
  }
  if (S_ISLNK(status.st_mode)) return std::nullopt;
  if (S_ISDIR(status.st_mode)) target.fail(EISDIR);
  if (!S_ISREG(status.st_mode))
    throw FileError(target.path() + ": not a regular file", ErrorKind::cannotWrite);
  if (::faccessat(target.directory(), target.name(), W_OK, AT_EACCESS) != 0) target.fail(errno);
  return status.st_mode & 0777U;
}

// A short name, so that a target of the greatest length leaves room for it.
std::string unfinishedName(const FilePlace& target, int writer) {
  return ".qor-" + hashText(target.name()) + "-" + std::to_string(writer) + ".tmp";
}

// Whether the file that is open is the one of that name.
bool isNamed(const FilePlace& target, const std::string& name, int handle) {
  struct stat open {};
  struct stat named {};
  return ::fstat(handle, &open) == 0 &&
         ::fstatat(target.directory(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

// The mask of the process would take bits from the mode of a file that is to be replaced.
int create(const FilePlace& target, const std::string& name, std::optional<mode_t> mode) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  if (!mode) return ::openat(target.directory(), name.c_str(), kFlags, kNewFile);
  const mode_t mask = ::umask(0);
  const int handle = ::openat(target.directory(), name.c_str(), kFlags, *mode);
  ::umask(mask);
  return handle;
}

// Removes what a writer that is dead has left under the name. False where there is nothing any
// more, or something that isn't its.
bool removeLeftover(const FilePlace& target, const std::string& name) {
  const int handle =
      ::openat(target.directory(), name.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (handle < 0) return false;
  const bool isDead = ::flock(handle, LOCK_EX | LOCK_NB) == 0 && isNamed(target, name, handle);
  const bool removed = isDead && ::unlinkat(target.directory(), name.c_str(), 0) == 0;
  ::close(handle);
  return removed;
}

// Where the file system knows no locks, nobody's file is taken for a leftover.
bool lock(int handle) {
  return ::flock(handle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// Opens and locks the name; nothing where somebody else has it.
std::optional<int> takeName(const FilePlace& target, const std::string& name,
                            std::optional<mode_t> mode) {
  int handle = create(target, name, mode);
  if (handle < 0 && errno == EEXIST) {
    if (!removeLeftover(target, name)) return std::nullopt;
    handle = create(target, name, mode);
  }
  if (handle < 0 && errno == EEXIST) return std::nullopt;
  if (handle < 0) target.fail(errno);
  // Another writer may have taken it for a leftover before it was locked.
  if (lock(handle) && isNamed(target, name, handle)) return handle;
  ::close(handle);
  return std::nullopt;
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::string& target) : target_(target) {
  const auto mode = modeOf(target_);
  const HeldSignals held;
  int writer = 0;
  std::optional<int> taken;
  for (; !taken && writer < kMostWriters; ++writer) {
    name_ = unfinishedName(target_, writer);
    taken = takeName(target_, name_, mode);
  }
  if (!taken) target_.fail(EEXIST);
  handle_ = *taken;
  noted_.emplace(target_.directory(), name_);
  // What several writers have left goes up to the first of them that isn't there.
  while (removeLeftover(target_, unfinishedName(target_, writer))) ++writer;
}

UnfinishedFile::~UnfinishedFile() {
  if (!name_.empty()) ::unlinkat(target_.directory(), name_.c_str(), 0);
  noted_.reset();
  ::close(handle_);
}

void UnfinishedFile::replaceTarget() {
  // Behind it the name may be another writer's.
  const HeldSignals held;
  noted_.reset();
  if (::renameat(target_.directory(), name_.c_str(), target_.directory(), target_.name()) != 0)
    target_.fail(errno);
  name_.clear();
}

}  // namespace qor
