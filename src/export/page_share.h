// The pages of a report that this process exports where several do: each takes the next few that
// nobody has taken.
#pragma once

#include <cstdint>

namespace qor {

class SharedCounter;

class PageShare {
 public:
  // The processes have the counter in common; it must live as long.
  explicit PageShare(SharedCounter& counter) : counter_(counter) {}

  // Whether the page is one of them. Pages are asked for in their order.
  bool has(std::int32_t page);

  // No process takes any more.
  void giveUp();

 private:
  SharedCounter& counter_;
  std::int32_t first_ = 0;  // of those that it has taken last
  std::int32_t end_ = 0;
};

}  // namespace qor
