// Exports in processes.
#include "bulk/bulk_workers.h"

#include <algorithm>
#include <utility>

#include "base/errors.h"
#include "base/path.h"
#include "bulk/report_export.h"
#include "export/export_formats.h"
#include "platform/system/file_stamp.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

constexpr std::chrono::minutes kLongestWait{1};

// Exports that make pictures of barcodes beside report or target name them by these.
std::vector<std::string> sideStemsOf(const PlannedExport& planned) {
  return {sideFileStem(planned.path), sideFileStem(planned.target)};
}

// One that is too long to be looked at may.
bool mayHoldBarcodes(const std::string& report) {
  constexpr std::uint64_t kLongest = 64 << 20;
  try {
    return loadWholeFile(report, kLongest).find("<barcode") != std::string::npos;
  } catch (const Error&) {
    return true;
  }
}

}  // namespace

BulkWorkers::BulkWorkers(const BulkOptions& options, const std::vector<PlannedExport>& plan)
    : options_(options),
      plan_(plan),
      jobs_(options.jobs),
      log_(options, plan.size()),
      reports_(plan.size()),
      children_([this](std::size_t id) { return work(id); }, options.limits) {
}

bool BulkWorkers::run() {
  while (next_ < plan_.size() || children_.running() > 0) {
    while (children_.running() < jobs_ && (startNext() || help())) continue;
    for (const ChildEnd& end : children_.wait(kLongestWait)) take(end);
  }
  if (log_failure_) std::rethrow_exception(log_failure_);
  return !log_.anyFailed();
}

// The wall of a process's first report is that of all that it exports.
ChildAnswer BulkWorkers::work(std::size_t id) {
  ExportPart part = {.isWalled = std::exchange(is_walled_, true),
                     .processors = std::max<std::size_t>(1, options_.jobs / plan_.size())};
  std::optional<PageShare> share;
  if (reports_[id].counter) {
    part.processors = 1;
    part.share = &share.emplace(*reports_[id].counter);
  }
  const BulkAnswer answer = exportReport(plan_[id], options_, part);
  return {written(answer), answer.leavesNothing && !share};
}

bool BulkWorkers::isShared(const PlannedExport& planned) const {
  const ExportFormat* format = formatOf(planned.target);
  const auto stamp = fileStamp(planned.path);
  return jobs_ > 1 && format != nullptr && stamp && canBeShared(*format, stamp->size);
}

// Two that would write the same pictures of barcodes at a time would read each other's.
bool BulkWorkers::mustWait(const PlannedExport& planned) const {
  const auto isTaken = [this](const std::string& stem) { return side_stems_.contains(stem); };
  return !options_.format.pictures && std::ranges::any_of(sideStemsOf(planned), isTaken) &&
         mayHoldBarcodes(planned.path);
}

bool BulkWorkers::startNext() {
  if (next_ == plan_.size() || mustWait(plan_[next_])) return false;
  const PlannedExport& planned = plan_[next_];
  Report& report = reports_[next_];
  report.start = Clock::now();
  report.places = placesOf(planned);
  // Only processes that are made from now on know the counter.
  if (isShared(planned)) {
    report.counter.emplace();
    report.places += '\0' + std::to_string(next_);
  }
  if (!startProcess(next_)) return false;
  if (report.counter) shared_.insert(next_);
  for (std::string& stem : sideStemsOf(planned)) side_stems_.insert(std::move(stem));
  ++next_;
  return true;
}

// One that finds no page left ends soon: each report gets as many as there may be, and no more.
bool BulkWorkers::help() {
  const auto report = std::ranges::find_if(
      shared_, [this](std::size_t id) { return reports_[id].helpers + 1 < options_.jobs; });
  if (next_ < plan_.size() || report == shared_.end() || !startProcess(*report)) return false;
  ++reports_[*report].helpers;
  return true;
}

// Where the system has no room for a further process beside those at work, they are enough.
bool BulkWorkers::startProcess(std::size_t id) {
  const bool started = children_.start(id, reports_[id].places);
  if (started)
    ++reports_[id].processes;
  else
    jobs_ = children_.running();
  return started;
}

void BulkWorkers::take(const ChildEnd& end) {
  BulkAnswer answer = end.trouble.empty() ? readAnswer(end.answer) : BulkAnswer();
  if (!end.trouble.empty()) answer.reason = "its process " + end.trouble;
  Report& report = reports_[end.id];
  report.answer = report.answer ? joined(*report.answer, answer) : std::move(answer);
  if (--report.processes > 0) return;
  shared_.erase(end.id);
  report.counter.reset();
  for (const std::string& stem : sideStemsOf(plan_[end.id]))
    side_stems_.erase(side_stems_.find(stem));
  tell(end.id);
  if (log_failure_ || (options_.failFast && log_.anyFailed())) next_ = plan_.size();
}

void BulkWorkers::tell(std::size_t id) {
  const auto time = Clock::now() - reports_[id].start;
  try {
    log_.tell(plan_[id], *reports_[id].answer,
              std::chrono::duration_cast<std::chrono::milliseconds>(time));
  } catch (const FileError&) {
    log_failure_ = std::current_exception();
  }
}

}  // namespace qor
