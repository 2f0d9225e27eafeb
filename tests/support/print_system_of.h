// The print system of the process for the length of a test.
#pragma once

#include <memory>
#include <vector>

#include "platform/print/print_system.h"

namespace qor::test {

// Made of these queues. The machine's own comes back with its end.
class PrintSystemOf {
 public:
  template <class... Queues>
  explicit PrintSystemOf(std::unique_ptr<Queues>... queues) {
    std::vector<std::unique_ptr<PrintQueues>> systems;
    (systems.push_back(std::move(queues)), ...);
    setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
  }
  ~PrintSystemOf() { setPrintSystem(nullptr); }
  PrintSystemOf(const PrintSystemOf&) = delete;
  PrintSystemOf& operator=(const PrintSystemOf&) = delete;
};

}  // namespace qor::test
