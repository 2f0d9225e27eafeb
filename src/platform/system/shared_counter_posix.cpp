// A counter in shared memory, on POSIX.
#include <cerrno>
#include <cstring>
#include <new>
#include <string>

#include <sys/mman.h>

#include "base/errors.h"
#include "platform/system/shared_counter.h"

namespace qor {

SharedCounter::SharedCounter() {
  static_assert(std::atomic<std::int32_t>::is_always_lock_free);
  void* const memory =
      ::mmap(nullptr, sizeof *count_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED)
    throw SystemError(std::string("no shared memory: ") + std::strerror(errno));
  count_ = new (memory) std::atomic<std::int32_t>(0);
}

SharedCounter::~SharedCounter() {
  ::munmap(count_, sizeof *count_);
}

}  // namespace qor
