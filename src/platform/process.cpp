// The process, on POSIX.
#include "platform/process.h"

#include <csignal>

namespace qor {

void prepareProcess() {
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace qor
