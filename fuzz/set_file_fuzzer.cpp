// A set file of any bytes: listing its sets, reading them, and writing them back.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "document/vset.h"
#include "scratch.h"

namespace {

using namespace qor;

constexpr std::size_t kMostSets = 8;
constexpr std::string_view kName = "sets.vset";

const fuzz::Scratch scratch;

// Ten pages for the set's page list to choose from.
void selectPages(const VSet& set) {
  AppOptions.FileName = scratch.write("report.txt", "1\f2\f3\f4\f5\f6\f7\f8\f9\f10");
  VDoc doc;
  doc.ScanPages(false);
  doc.Settings.Page = set.Page;
  doc.SelectPages();
}

void readAndWrite(std::string_view bytes, const std::string& name) {
  AppOptions.SetName = name;
  AppOptions.IniFileName = scratch.write(kName, bytes);
  VSet set;
  fuzz::tolerant([&set] { set.ReloadSet(); });
  fuzz::tolerant([&set] { selectPages(set); });
  set.SaveSet();
  VSet().LoadSet();
}

std::vector<std::string> setNames(std::string_view bytes) {
  AppOptions.IniFileName = scratch.write(kName, bytes);
  std::vector<std::string> names;
  fuzz::tolerant([&names] { VSet::ListSetNames(names); });
  names.resize(std::min(names.size(), kMostSets));
  names.insert(names.end(), {"Default", ""});
  return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::textOf(data, size);
  scratch.clear();
  for (const std::string& name : setNames(bytes))
    fuzz::tolerant([&] { readAndWrite(bytes, name); });
  return 0;
}
