// The machine's print system. It is a module of its own, so that runs that print nothing don't pay
// for the start of its libraries, and machines without them print all the same.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/print/print_queues.h"

namespace qor {

// Null where the module or a library that it needs is not there.
std::unique_ptr<PrintQueues> loadSystemQueues();

// Where its scheduler is to be asked; nothing where there is no module.
struct SchedulerAddress {
  std::string server;  // a host, or the path of a socket
  int port = 0;        // of the host
};
std::optional<SchedulerAddress> schedulerAddress();

// What the module offers under these names, for the loader.
using MakeSystemQueues = PrintQueues*();
inline constexpr const char* kMakeSystemQueues = "qorMakeSystemQueues";
using TellScheduler = void(SchedulerAddress&);
inline constexpr const char* kTellScheduler = "qorTellScheduler";

}  // namespace qor
