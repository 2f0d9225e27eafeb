// Comparing targets.
#include "bulk/targets_apart.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "base/path.h"
#include "platform/system/directory.h"
#include "platform/system/long_options.h"

namespace qor {
namespace {

using Targets = std::map<std::string, const PlannedExport*>;

[[noreturn]] void refuse(const PlannedExport& first, const PlannedExport& second) {
  throw UsageError(second.target + " would be the target of " + first.report + " and of " +
                   second.report);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Pictures bear numbers: a report's may end in that of another one's page.
void requireApartByPage(const Targets& targets, const std::string& before, const std::string& after,
                        const PlannedExport& planned) {
  for (std::size_t end = before.size(); end > 0 && isDigit(before[end - 1]); --end) {
    const auto other = targets.find(before.substr(0, end - 1) + after);
    if (other != targets.end()) refuse(*other->second, planned);
  }
}

// "ledger(2).png" is the second page of "ledger.png", and "r1{page}.png" the pages from 10 on of
// "r{page}.png".
void requirePicturesApart(const Targets& targets) {
  for (const auto& [target, planned] : targets) {
    const auto page = target.find(kPage);
    if (page != target.npos) {
      requireApartByPage(targets, target.substr(0, page), target.substr(page), *planned);
      continue;
    }
    const std::string extension(extensionOf(target));
    const std::string stem = target.substr(0, target.size() - extension.size());
    const auto open = stem.rfind('(');
    if (open == stem.npos || !stem.ends_with(')') || open + 2 == stem.size() ||
        !std::all_of(stem.begin() + static_cast<std::ptrdiff_t>(open) + 1, stem.end() - 1, isDigit))
      continue;
    const auto other = targets.find(stem.substr(0, open) + extension);
    if (other != targets.end()) refuse(*other->second, *planned);
  }
}

}  // namespace

void requireApart(const std::vector<PlannedExport>& plan, const BulkFormat& format) {
  Targets byTarget;
  std::set<std::string> reports;
  for (const PlannedExport& each : plan) reports.insert(realPath(each.path));
  for (const PlannedExport& each : plan) {
    const std::string target = realPath(each.target);
    const auto [known, isNew] = byTarget.try_emplace(target, &each);
    if (!isNew) refuse(*known->second, each);
    if (reports.contains(target)) throw UsageError(each.target + " is a report, and a target, too");
  }
  if (format.pictures) requirePicturesApart(byTarget);
}

}  // namespace qor
