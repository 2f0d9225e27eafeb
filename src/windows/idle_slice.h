// A long work that is done while nothing else is to do.
#pragma once

#include <functional>

namespace qor {

// Does `step` again and again until it has nothing left to do, which is false, or the window is to
// answer again. Whether there is more to do: a step that throws is the last one.
bool doSlice(const std::function<bool()>& step);

}  // namespace qor
