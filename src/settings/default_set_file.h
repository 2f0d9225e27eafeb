// The set file of runs that are told none: the program names it by itself.
#pragma once

#include <string>

#include "base/app_options.h"

namespace qor {

inline std::string defaultSetFile() {
  return AppOptions.WorkDir + "QorUtlView.vset";
}

}  // namespace qor
