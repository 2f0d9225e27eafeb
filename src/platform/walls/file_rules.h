// The part of the wall that knows files and ports: the kernel's Landlock.
#pragma once

#include <string>

namespace qor {

struct WallPlan;

// Gives why it doesn't stand, where the kernel has it.
std::string restrictFiles(const WallPlan& plan);

}  // namespace qor
