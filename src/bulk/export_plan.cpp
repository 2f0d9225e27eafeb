// Planning exports.
#include "bulk/export_plan.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <utility>

#include "base/path.h"
#include "base/text.h"
#include "bulk/targets_apart.h"
#include "platform/system/directory.h"
#include "platform/system/long_options.h"

namespace qor {
namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestList = std::size_t{1} << 28U;

// All of a stream, which may be a pipe, up to that length.
std::string textOf(std::istream& stream) {
  std::array<char, 65536> block;
  std::string text;
  while (stream && text.size() <= kLongestList) {
    stream.read(block.data(), block.size());
    text.append(block.data(), static_cast<std::size_t>(stream.gcount()));
  }
  return text;
}

std::string listed(const std::string& list) {
  std::ifstream file;
  if (list != "-") file.open(list, std::ios::binary);
  std::istream& stream = list == "-" ? std::cin : file;
  std::string text = textOf(stream);
  if (stream.bad() || (list != "-" && !file.is_open()))
    throw UsageError("--from-file: " + list + ": " + std::strerror(errno));
  if (text.size() > kLongestList) throw UsageError("--from-file: " + list + " is too long");
  return text;
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
