// What stands in the way of writing a file, as far as it can be told before it is tried.
#pragma once

#include <string>

namespace qor {

enum class WriteObstacle {
  none,
  directory,     // there is a directory of that name
  notRegular,    // there is a device or its like
  tooLong,       // for this file system
  noDirectory,   // to put it into
  noPermission,  // or another refusal of the system
};

WriteObstacle obstacleTo(const std::string& path);

}  // namespace qor
