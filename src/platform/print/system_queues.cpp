// Loading the module of the machine's print system.
#include "platform/print/system_queues.h"

#include "platform/system/module.h"

namespace qor {
namespace {

constexpr const char* kModule = "qor_cups";

}  // namespace

std::unique_ptr<PrintQueues> loadSystemQueues() {
  auto* make = reinterpret_cast<MakeSystemQueues*>(moduleSymbol(kModule, kMakeSystemQueues));
  return std::unique_ptr<PrintQueues>(make == nullptr ? nullptr : make());
}

std::optional<SchedulerAddress> schedulerAddress() {
  auto* tell = reinterpret_cast<TellScheduler*>(moduleSymbol(kModule, kTellScheduler));
  if (tell == nullptr) return std::nullopt;
  SchedulerAddress address;
  tell(address);
  return address;
}

}  // namespace qor
