// The process, on POSIX.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <malloc.h>
#include <sched.h>
#include <unistd.h>

#include "platform/system/process.h"
#include "platform/system/unfinished_name.h"

namespace qor {
namespace {

// A file that took the place of a closed standard stream would get what is told there. What stands
// there instead can be neither read nor written: whoever needs the stream is to notice.
void openStandardStreams() {
  for (const auto& [stream, mode] :
       {std::pair(STDIN_FILENO, O_WRONLY), std::pair(STDOUT_FILENO, O_RDONLY),
        std::pair(STDERR_FILENO, O_RDWR)}) {
    // The system gives the lowest number that is free.
    if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF) ::open("/dev/null", mode);
  }
}

// Pages need the same few megabytes again and again: they stay with the process, where the system
// would take them back, and clear them, for each page.
void keepFreedMemory() {
  constexpr int kKept = 8 << 20;  // bytes
  ::mallopt(M_MMAP_THRESHOLD, kKept);
  ::mallopt(M_TRIM_THRESHOLD, kKept);
}

}  // namespace

bool errorIsTerminal() {
  return ::isatty(STDERR_FILENO) == 1;
}

std::size_t processorCount() {
  cpu_set_t set;
  if (::sched_getaffinity(0, sizeof set, &set) != 0) return 1;
  return static_cast<std::size_t>(std::max(1, CPU_COUNT(&set)));
}

void prepareProcess() {
  openStandardStreams();
  keepFreedMemory();
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  cleanUpOnSignals();
}

}  // namespace qor
