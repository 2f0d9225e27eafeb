// The other programs of the suite.
#pragma once

#include <string>
#include <vector>

namespace qor {

// Starts a program found on the path and leaves it to itself. False where there is none.
bool startCompanion(const std::string& program, const std::vector<std::string>& arguments = {});

}  // namespace qor
