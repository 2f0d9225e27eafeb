// The set file of runs that are told none.
#pragma once

#include <string>

#include "base/app_options.h"

namespace qor {

inline std::string defaultSetFile() {
  return AppOptions.WorkDir + "QorUtlView.vset";
}

}  // namespace qor
