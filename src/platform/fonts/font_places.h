// Where fonts and their settings are.
#pragma once

#include <string>
#include <vector>

namespace qor {

// Files and directories that drawing text may read. The settings are read for it, which drawing
// then needn't do again.
std::vector<std::string> fontPlaces();

}  // namespace qor
