// The process, on POSIX.
#include <csignal>

#include "platform/system/process.h"

namespace qor {

void prepareProcess() {
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace qor
