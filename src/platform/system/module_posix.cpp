// Modules, on POSIX.
#include <dlfcn.h>

#include "platform/system/directory.h"
#include "platform/system/module.h"

namespace qor {

void* moduleSymbol(const char* module, const char* name) {
  const std::string file = programDirectory() + module + ".so";
  void* handle = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  return handle == nullptr ? nullptr : ::dlsym(handle, name);
}

std::string moduleError() {
  const char* error = ::dlerror();
  return error == nullptr ? "" : error;
}

}  // namespace qor
