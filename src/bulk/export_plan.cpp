// Planning exports.
#include "bulk/export_plan.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "base/path.h"
#include "base/text.h"
#include "platform/system/directory.h"
#include "platform/system/long_options.h"

namespace qor {
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPage = "{page}";

// Also what a pipe brings.
std::string listed(const std::string& list) {
  std::ifstream file;
  if (list != "-") file.open(list, std::ios::binary);
  std::istream& names = list == "-" ? std::cin : file;
  std::ostringstream text;
  if (names.peek() != std::istream::traits_type::eof()) text << names.rdbuf();
  if (names.bad() || (list != "-" && !file.is_open()))
    throw UsageError("--from-file: " + list + ": " + std::strerror(errno));
  return std::move(text).str();
}

void addListed(std::string_view list, std::vector<std::string>& reports) {
  const char end = list.find('\0') == list.npos ? '\n' : '\0';
  while (!list.empty()) {
    std::string_view name = upTo(list, end);
    list.remove_prefix(std::min(list.size(), name.size() + 1));
    if (end == '\n' && name.ends_with('\r')) name.remove_suffix(1);
    // Names of a list are those of files.
    if (!name.empty()) reports.push_back(name == "-" ? "./-" : std::string(name));
  }
}

std::string directoryNameOf(const std::string& path) {
  const std::string directory = fs::path(path).parent_path().string();
  return directory.empty() ? "." : directory;
}

// What stands for a name in braces. A back slash is a letter of the name here.
std::string fieldOf(std::string_view field, const std::string& report, const BulkFormat& format) {
  const fs::path path = report == "-" ? "stdin" : report;
  if (field == "{stem}") return path.stem().string();
  if (field == "{name}") return path.filename().string();
  if (field == "{dir}") return directoryNameOf(path.string());
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
  if (namesPages(options) &&
      fs::path(options.target).parent_path().string().find(kPage) != std::string::npos)
    throw UsageError("--output: {page} stands for a part of the name, and of no directory");
  return target;
}

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

// What the standard output can't do.
void requireOneOutput(const BulkOptions& options, const std::vector<PlannedExport>& plan) {
  if (plan.size() != 1) throw UsageError("the standard output has room for one report");
  if (options.ifNewer)
    throw UsageError("--if-newer: a report can't be newer than the standard output");
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
  if (options.target == "-")
    requireOneOutput(options, plan);
  else
    requireApart(plan, options.format);
  return plan;
}

std::string placesOf(const PlannedExport& planned) {
  return placeOf(planned.path) + '\0' + placeOf(planned.target);
}

bool namesPages(const BulkOptions& options) {
  return options.target.find(kPage) != std::string::npos;
}

std::string withPage(const std::string& target, std::int32_t page) {
  std::string name = target;
  for (auto at = name.find(kPage); at != name.npos; at = name.find(kPage, at))
    name.replace(at, kPage.size(), std::to_string(page));
  return name;
}

}  // namespace qor
