// Sets in their file.
#include "window_model/set_store.h"

#include <utility>

#include "base/app_options.h"
#include "platform/system/input_file.h"
#include "settings/set_lines.h"

namespace qor {
namespace {

constexpr const char* kDefaultSet = "Default";

// A set is written under the name that is in force.
VSet::Lines writtenLines(const VSet& set, const std::string& name) {
  VSet::Lines lines;
  std::string inForce = std::exchange(AppOptions.SetName, name.empty() ? kDefaultSet : name);
  set.WriteSetLines(lines);
  AppOptions.SetName = std::move(inForce);
  return lines;
}

}  // namespace

std::vector<std::string> namesOfSets() {
  std::vector<std::string> names;
  VSet::ListSetNames(names);
  return names;
}

void openSetFile(const std::string& path) {
  std::string inForce = std::exchange(AppOptions.IniFileName, path);
  try {
    const std::vector<std::string> names = namesOfSets();
    AppOptions.SetName = names.empty() ? std::string() : names.front();
  } catch (...) {
    AppOptions.IniFileName = std::move(inForce);
    throw;
  }
}

bool saveSetAs(const VSet& set, const std::string& name) {
  AppOptions.SetName = name.empty() ? kDefaultSet : name;
  return set.SaveSet() == 0;
}

void loadSetOf(const std::string& name, VSet& set) {
  AppOptions.SetName = name;
  VSet loaded = set;
  loaded.ReloadSet();
  set = std::move(loaded);
}

void deleteSetInForce() {
  if (AppOptions.IniFileName.empty() || !fileExists(AppOptions.IniFileName)) return;
  VSet::Lines lines = loadLines(AppOptions.IniFileName);
  VSet::RemoveSetLines(AppOptions.SetName, lines);
  saveLines(AppOptions.IniFileName, lines);
  AppOptions.SetName = kDefaultSet;
}

std::vector<std::string> linesOfSet(const std::string& name, const VSet& set) {
  VSet::Lines lines;
  if (!name.empty() && fileExists(AppOptions.IniFileName)) VSet::ExtractSetLines(name, lines);
  if (lines.empty()) lines = writtenLines(set, name);
  for (std::string& line : lines) line = utf8OfFileText(line);
  return lines;
}

}  // namespace qor
