// The process, on POSIX.
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

#include "platform/system/process.h"
#include "platform/system/unfinished_name.h"

namespace qor {
namespace {

// A file that took the place of a closed standard stream would get what is told there.
void openStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // The system gives the lowest number that is free.
    if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF) ::open("/dev/null", O_RDWR);
  }
}

}  // namespace

void prepareProcess() {
  openStandardStreams();
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  cleanUpOnSignals();
}

}  // namespace qor
