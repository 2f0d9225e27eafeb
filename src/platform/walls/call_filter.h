// The part of the wall that knows system calls: the kernel's seccomp.
#pragma once

#include <string>

namespace qor {

struct WallPlan;

// Gives why it doesn't stand, where the kernel has it.
std::string restrictCalls(const WallPlan& plan);

}  // namespace qor
