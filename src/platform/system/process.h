// What the process asks of the system before it starts.
#pragma once

#include <cstddef>

namespace qor {

// Makes a file that grows too large, or a reader that goes away, a failed write and not the end of
// the process; opens standard streams that are closed, on nothing; and has signals that end the
// process take away the files that it has not finished. To be called before anything else.
void prepareProcess();

// Whether somebody looks at the standard error.
bool errorIsTerminal();

// The processors that the process may use, 1 or more.
std::size_t processorCount();

}  // namespace qor
