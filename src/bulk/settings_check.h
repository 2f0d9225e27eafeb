// Settings that are named must be there: thousands of targets would come out in others.
#pragma once

#include <string>

namespace qor {

// That the file (none: ok) holds the set of this name (none: any). It becomes that of the run.
// Throws UsageError.
void requireSet(const std::string& file, const std::string& set);

}  // namespace qor
