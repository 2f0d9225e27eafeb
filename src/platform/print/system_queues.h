// The machine's print system. It is a module of its own, so that runs that print nothing don't pay
// for the start of its libraries, and machines without them print all the same.
#pragma once

#include <memory>

#include "platform/print/print_queues.h"

namespace qor {

// Null where the module or a library that it needs is not there.
std::unique_ptr<PrintQueues> loadSystemQueues();

// What the module offers under this name, for the loader.
using MakeSystemQueues = PrintQueues*();
inline constexpr const char* kMakeSystemQueues = "qorMakeSystemQueues";

}  // namespace qor
