// Planning exports.
#include "bulk/export_plan.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/path.h"
#include "base/text.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/long_options.h"
#include "platform/system/temporary_file.h"

namespace qor {
namespace {

constexpr std::uint64_t kLongestList = std::uint64_t{1} << 30U;
constexpr std::string_view kPage = "{page}";

std::string listed(const std::string& list) {
  if (list != "-") return loadWholeFile(list, kLongestList);
  const TemporaryFile input("");
  input.takeInput();
  return loadWholeFile(input.path(), kLongestList);
}

void addListed(std::string_view list, std::vector<std::string>& reports) {
  const char end = list.find('\0') == list.npos ? '\n' : '\0';
  while (!list.empty()) {
    const std::string_view name = upTo(list, end);
    if (!name.empty()) reports.emplace_back(name);
    list.remove_prefix(std::min(list.size(), name.size() + 1));
  }
}

// The directory without its last separator.
std::string directoryNameOf(const std::string& path) {
  std::string_view directory = directoryOf(path);
  if (directory.size() > 1) directory.remove_suffix(1);
  return directory.empty() ? "." : std::string(directory);
}

// What stands for a name in braces.
std::string fieldOf(std::string_view field, const std::string& report, const BulkFormat& format) {
  const std::string path = report == "-" ? "stdin" : report;
  if (field == "{stem}") return std::string(baseNameOf(path));
  if (field == "{name}") return std::string(fileNameOf(path));
  if (field == "{dir}") return directoryNameOf(path);
  if (field == "{ext}") return std::string(format.extension.substr(1));
  if (field == kPage && format.pictures) return std::string(kPage);
  throw UsageError("--output: nothing is known of " + std::string(field));
}

std::string targetOf(const BulkOptions& options, const std::string& report) {
  std::string target;
  std::string_view rest = options.target;
  while (!rest.empty()) {
    const auto open = rest.find('{');
    target += rest.substr(0, open);
    if (open == rest.npos) break;
    rest.remove_prefix(open);
    const auto close = rest.find('}');
    if (close == rest.npos) throw UsageError("--output: { has no } behind it");
    target += fieldOf(rest.substr(0, close + 1), report, options.format);
    rest.remove_prefix(close + 1);
  }
  if (extensionOf(target) != options.format.extension)
    throw UsageError("--output: " + target + " doesn't end in " +
                     std::string(options.format.extension));
  return target;
}

void requireApart(const std::vector<PlannedExport>& plan) {
  std::map<std::string, const PlannedExport*> byTarget;
  std::set<std::string> reports;
  for (const PlannedExport& each : plan) reports.insert(realPath(each.path));
  for (const PlannedExport& each : plan) {
    const std::string target = realPath(each.target);
    const auto [known, isNew] = byTarget.try_emplace(target, &each);
    if (!isNew)
      throw UsageError(each.target + " would be the target of " + known->second->report +
                       " and of " + each.report);
    if (reports.contains(target)) throw UsageError(each.target + " is a report, and a target, too");
  }
}

// A link is a place of its own.
std::string placeOf(const std::string& file) {
  return isLink(file) ? file : directoryNameOf(file);
}

}  // namespace

std::vector<std::string> namedReports(const BulkOptions& options) {
  std::vector<std::string> reports = options.reports;
  if (!options.list.empty()) addListed(listed(options.list), reports);
  return reports;
}

std::vector<PlannedExport> planExports(const BulkOptions& options,
                                       const std::vector<std::string>& reports) {
  std::vector<PlannedExport> plan;
  std::set<std::string> known;
  for (const std::string& report : reports) {
    if (!known.insert(report == "-" ? report : realPath(report)).second) continue;
    plan.push_back({report, report, options.target == "-" ? "-" : targetOf(options, report)});
  }
  if (options.target == "-" && plan.size() != 1)
    throw UsageError("the standard output has room for one report");
  if (options.target != "-") requireApart(plan);
  return plan;
}

std::string placesOf(const PlannedExport& planned) {
  return placeOf(planned.path) + '\0' + placeOf(planned.target);
}

std::string withPage(const std::string& target, std::int32_t page) {
  std::string name = target;
  for (auto at = name.find(kPage); at != name.npos; at = name.find(kPage, at))
    name.replace(at, kPage.size(), std::to_string(page));
  return name;
}

}  // namespace qor
