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

// The handler is gone by the time that the signal comes again, which is when this returns.
void leaveNothing(int number) {
  removeUnfinishedFiles();
  ::raise(number);
}

// One that the starter wants to be ignored stays so.
void cleanUpOn(int number) {
  struct sigaction old {};
  if (::sigaction(number, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = leaveNothing;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  ::sigaction(number, &action, nullptr);
}

}  // namespace

void prepareProcess() {
  openStandardStreams();
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) cleanUpOn(number);
}

}  // namespace qor
