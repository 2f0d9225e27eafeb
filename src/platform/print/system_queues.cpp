// Loading the module of the machine's print system, on POSIX.
#include "platform/print/system_queues.h"

#include <dlfcn.h>

#include "platform/directory.h"

namespace qor {

std::unique_ptr<PrintQueues> loadSystemQueues() {
  const std::string file = programDirectory() + "qor_cups.so";
  // Never unloaded: the queues live as long as the process.
  void* module = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) return nullptr;
  auto* make = reinterpret_cast<MakeSystemQueues*>(::dlsym(module, kMakeSystemQueues));
  return std::unique_ptr<PrintQueues>(make == nullptr ? nullptr : make());
}

}  // namespace qor
