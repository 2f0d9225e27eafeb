// Looking for sets.
#include "bulk/settings_check.h"

#include <algorithm>
#include <vector>

#include "base/app_options.h"
#include "document/vset.h"
#include "platform/system/input_file.h"
#include "platform/system/long_options.h"

namespace qor {

void requireSet(const std::string& file, const std::string& set) {
  if (file.empty()) return;
  if (!fileExists(file)) throw UsageError("there is no file of settings " + file);
  AppOptions.IniFileName = file;
  std::vector<std::string> names;
  if (!set.empty()) VSet::ListSetNames(names);
  if (!set.empty() && std::ranges::find(names, set) == names.end())
    throw UsageError("there is no set \"" + set + "\" in " + file);
}

}  // namespace qor
