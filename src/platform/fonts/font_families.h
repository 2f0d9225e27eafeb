// The families of fonts that a user can choose from.
#pragma once

#include <string>
#include <vector>

namespace qor {

// Names of the families that have a TrueType file with the letters of a Windows character set, in
// order and each once; and those that reports are written in, where such a family stands in for
// them.
std::vector<std::string> trueTypeFamilies(int charset);

// True if the system has the family (UTF-8) or one that is made to stand in for it, and not just
// any.
bool hasFamily(const std::string& name);

}  // namespace qor
