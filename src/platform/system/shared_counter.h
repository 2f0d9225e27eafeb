// A counter that processes have in common which are copies of each other.
#pragma once

#include <atomic>
#include <cstdint>

namespace qor {

class SharedCounter {
 public:
  // Copies of the process that are made later share it. Throws SystemError.
  SharedCounter();
  ~SharedCounter();
  SharedCounter(const SharedCounter&) = delete;
  SharedCounter& operator=(const SharedCounter&) = delete;

  // Counts from 0; no two calls of all the processes get the same number.
  std::int32_t next() { return count_->fetch_add(1, std::memory_order_relaxed); }

  // The next numbers are from this one on, for all of them.
  void set(std::int32_t number) { count_->store(number, std::memory_order_relaxed); }

 private:
  std::atomic<std::int32_t>* count_;
};

}  // namespace qor
