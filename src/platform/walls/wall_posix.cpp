// Raising the wall, on Linux.
#include <cerrno>
#include <cstring>

#include <sys/prctl.h>
#include <unistd.h>

#include "platform/walls/call_filter.h"
#include "platform/walls/file_rules.h"
#include "platform/walls/wall.h"

namespace qor {
namespace {

// They would lead around all that follows.
void closeInherited() {
  constexpr unsigned kFirst = STDERR_FILENO + 1;
  ::close_range(kFirst, ~0U, 0);
}

}  // namespace

std::string raiseWall(const WallPlan& plan) {
  closeInherited();
  if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return std::strerror(errno);
  std::string files = restrictFiles(plan);
  std::string calls = restrictCalls(plan);
  return files.empty() || calls.empty() ? files + calls : files + ", " + calls;
}

}  // namespace qor
