// The options of a print job as the scheduler hands them to a filter, by libcups.
#pragma once

#include <map>
#include <string>

namespace qor {

// The values of all options by their names. What no "=" follows is there as "true".
std::map<std::string, std::string> jobOptions(const std::string& text);

}  // namespace qor
