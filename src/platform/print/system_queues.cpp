// Loading the module of the machine's print system.
#include "platform/print/system_queues.h"

#include "platform/system/module.h"

namespace qor {

std::unique_ptr<PrintQueues> loadSystemQueues() {
  auto* make = reinterpret_cast<MakeSystemQueues*>(moduleSymbol("qor_cups", kMakeSystemQueues));
  return std::unique_ptr<PrintQueues>(make == nullptr ? nullptr : make());
}

}  // namespace qor
