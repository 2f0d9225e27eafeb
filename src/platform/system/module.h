// Parts of the program in modules of their own beside it, so that only runs that use them pay for
// the start of their libraries.
#pragma once

#include <string>

namespace qor {

// What a module offers under a name; null where the module or a library that it needs is not there.
// Modules stay loaded.
void* moduleSymbol(const char* module, const char* name);

// Why the last moduleSymbol gave null.
std::string moduleError();

}  // namespace qor
