// Drawing the report of a print job.
#include "filter/report_filter.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>

#include "base/app_options.h"
#include "base/errors.h"
#include "bulk/report_export.h"
#include "bulk/settings_check.h"
#include "document/code_page.h"
#include "filter/filter_job.h"
#include "platform/system/child_runs.h"
#include "platform/system/directory.h"
#include "platform/system/failure.h"
#include "platform/system/long_options.h"
#include "platform/system/private_directory.h"
#include "platform/system/unfinished_name.h"
#include "platform/system/whole_file.h"
#include "platform/walls/places.h"

namespace qor {
namespace {

constexpr const char* kServerDirectory = "/etc/qorutlview";
constexpr const char* kSetFile = "sets.vset";
// A queue is for everybody: no report may keep it for itself.
constexpr ChildLimits kLimits = {std::chrono::minutes(10), std::uint64_t{2} << 30U};
constexpr std::chrono::milliseconds kBetweenLooks{100};

std::string environment(const char* name, const char* otherwise) {
  const char* value = std::getenv(name);
  return value == nullptr ? otherwise : value;
}

// Code pages and pictures without a directory in their names are looked for there, too.
void enterServerDirectory() {
  const std::string directory = environment("QOR_SERVER_DIRECTORY", kServerDirectory);
  enterDirectory(directory);
  AppOptions.PicturePlaces = placesIn(environment("QOR_PICTURE_PATH", ""));
  AppOptions.PicturePlaces->push_back(directory);
  AppOptions.IniFileName = directory + "/" + kSetFile;
}

void refuseUnknown(const FilterJob& job) {
  if (job.codePage != 0 && !isKnownCodePage(job.codePage))
    throw UsageError(std::string(kCodePageOption) + ": code page " + std::to_string(job.codePage) +
                     " is unknown");
  if (!job.setName.empty()) requireSet(AppOptions.IniFileName, job.setName);
}

BulkOptions optionsOf(const FilterJob& job) {
  BulkOptions options;
  options.format = {"drawn", ".pdf", true};
  options.codePage = job.codePage;
  if (!job.setName.empty()) options.setFile = AppOptions.IniFileName;
  options.setName = job.setName;
  return options;
}

// In the child, which nothing may leave but its answer.
BulkAnswer draw(const BulkOptions& options, const std::string& report, const std::string& target) {
  try {
    fillFromInput(report);
  } catch (...) {
    return {.reason = caughtFailure().text};
  }
  return exportReport({report, report, target}, options, {});
}

// What the work in a process of its own gave. Throws StoppedError where the job is cancelled.
BulkAnswer answerOf(const std::function<BulkAnswer()>& work) {
  ChildRuns children([&work](std::size_t) { return ChildAnswer{written(work())}; }, kLimits);
  children.start(0, {});
  std::vector<ChildEnd> ends;
  while (ends.empty()) {
    if (HeldSignals::oneWaits()) throw StoppedError();
    ends = children.wait(kBetweenLooks);
  }
  if (!ends.front().trouble.empty()) throw SystemError("its process " + ends.front().trouble);
  return readAnswer(ends.front().answer);
}

// Whoever prints knows the report by its title.
std::string withTitle(std::string text, const std::string& file) {
  const std::string& title = AppOptions.FileName;
  for (auto at = text.find(file); at != text.npos; at = text.find(file, at + title.size()))
    text.replace(at, file.size(), title);
  return text;
}

// A document whose file has no name any more, and what it lacks.
struct Drawn {
  std::string notice;
  OutputSource document;
};

Drawn drawn(const FilterJob& job) {
  const HeldSignals held;
  const PrivateDirectory place;
  const std::string report = place.path("report");
  const std::string target = place.path("report.pdf");
  const BulkAnswer answer = answerOf([&] { return draw(optionsOf(job), report, target); });
  const std::string notice = withTitle(withTitle(answer.reason, target), report);
  if (answer.result != BulkResult::done) throw ReportError(notice);
  return {notice, OutputSource(target)};
}

}  // namespace

std::string filterReport(const FilterJob& job) {
  AppOptions.FileName = AppOptions.WindowCaption = job.title;
  if (!job.file.empty() && std::freopen(job.file.c_str(), "rb", stdin) == nullptr)
    throw FileError(job.file + ": " + std::strerror(errno));
  enterServerDirectory();
  refuseUnknown(job);
  const Drawn result = drawn(job);
  result.document.giveToOutput();
  return result.notice;
}

}  // namespace qor
