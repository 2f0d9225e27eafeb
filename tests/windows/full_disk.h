// A disk that is nearly full.
#pragma once

#include <csignal>

#include <sys/resource.h>

namespace qor::test {

// No file grows beyond so many bytes while the steps are done.
template <class Steps>
void onAFullDisk(unsigned long bytes, Steps steps) {
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const rlimit limit{bytes, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  steps();
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
}

}  // namespace qor::test
