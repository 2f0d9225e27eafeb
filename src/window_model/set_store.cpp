// Sets in their file.
#include "window_model/set_store.h"

#include <utility>

#include "base/app_options.h"
#include "platform/system/input_file.h"
#include "settings/set_lines.h"

namespace qor {
namespace {

constexpr const char* kDefaultSet = "Default";

// Puts back what was in force, unless it is to stay.
class InForce {
 public:
  InForce() = default;
  ~InForce() {
    if (stays_) return;
    AppOptions.IniFileName = file_;
    AppOptions.SetName = name_;
  }
  InForce(const InForce&) = delete;
  InForce& operator=(const InForce&) = delete;

  void stays() { stays_ = true; }

 private:
  std::string file_ = AppOptions.IniFileName;
  std::string name_ = AppOptions.SetName;
  bool stays_ = false;
};

std::string nameOrDefault(const std::string& name) {
  return name.empty() ? kDefaultSet : name;
}

// A set is written under the name that is in force.
VSet::Lines writtenLines(const VSet& set, const std::string& name) {
  const InForce inForce;
  AppOptions.SetName = nameOrDefault(name);
  VSet::Lines lines;
  set.WriteSetLines(lines);
  return lines;
}

}  // namespace

std::vector<std::string> namesOfSets() {
  std::vector<std::string> names;
  VSet::ListSetNames(names);
  return names;
}

void openSetFile(const std::string& path) {
  InForce inForce;
  AppOptions.IniFileName = path;
  const std::vector<std::string> names = namesOfSets();
  AppOptions.SetName = names.empty() ? std::string() : names.front();
  inForce.stays();
}

void saveSetAs(const VSet& set, const std::string& name, const std::string& file) {
  InForce inForce;
  AppOptions.IniFileName = file;
  AppOptions.SetName = nameOrDefault(name);
  if (set.SaveSet() == 0) inForce.stays();
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
  saveSetFile(lines);
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
