// The calendar of a moment.
#pragma once

#include <ctime>

namespace qor {

// In UTC, whatever the time zone of the process.
std::tm utcParts(std::time_t time);

}  // namespace qor
