// Running exports.
#include "bulk/bulk_run.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/errors.h"
#include "base/path.h"
#include "bulk/bulk_log.h"
#include "bulk/export_plan.h"
#include "bulk/report_export.h"
#include "export/export_formats.h"
#include "platform/system/directory.h"
#include "platform/system/file_stamp.h"
#include "platform/system/shared_counter.h"
#include "platform/system/temporary_file.h"

namespace qor {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::minutes kLongestWait{1};

// The exports at hand, in processes. Where there are more processors than reports, several of them
// share the pictures of a long report.
class Workers {
 public:
  Workers(const BulkOptions& options, const std::vector<PlannedExport>& plan)
      : options_(options),
        plan_(plan),
        jobs_(options.jobs),
        most_shares_(
            std::max<std::size_t>(1, options.jobs / std::max<std::size_t>(1, plan.size()))),
        log_(options, plan.size()),
        reports_(plan.size()),
        children_([this](std::size_t id) { return work(id); }, options.limits) {}

  bool run() {
    while (next_ < plan_.size() || children_.running() > 0) {
      while (children_.running() < jobs_ && next_ < plan_.size()) start();
      for (const ChildEnd& end : children_.wait(kLongestWait)) take(end);
    }
    return !log_.anyFailed();
  }

 private:
  // A report while it is exported.
  struct Report {
    Clock::time_point start{};
    std::optional<SharedCounter> counter{};  // where several processes share its pages
    std::size_t shares = 0;                  // that haven't ended
    std::optional<BulkAnswer> answer{};      // of those that have
  };

  // In a child. The wall of its first report is that of all that it exports.
  ChildAnswer work(std::size_t id) {
    ExportPart part = {std::exchange(is_walled_, true), most_shares_, nullptr};
    std::optional<PageShare> share;
    if (std::optional<SharedCounter>& counter = reports_[id].counter)
      part = {part.isWalled, 1, &share.emplace(*counter)};
    const BulkAnswer answer = exportReport(plan_[id], options_, part);
    return {written(answer), answer.leavesNothing && !share};
  }

  bool isShared(const PlannedExport& planned) const {
    const ExportFormat* format = formatOf(planned.target);
    const auto stamp = fileStamp(planned.path);
    return most_shares_ > 1 && format != nullptr && stamp && canBeShared(*format, stamp->size);
  }

  // A process that knows the counter has been made behind it.
  void start() {
    const PlannedExport& planned = plan_[next_];
    Report& report = reports_[next_];
    report.start = Clock::now();
    report.shares = 1;
    std::string kind = placesOf(planned);
    if (isShared(planned)) {
      report.counter.emplace();
      report.shares = most_shares_;
      kind += '\0' + std::to_string(next_);
    }
    for (std::size_t i = 0; i < report.shares; ++i)
      if (!startProcess(kind)) report.shares = i;
    if (report.shares > 0) ++next_;
  }

  // Where the system has no room for a further process beside those at work, they are enough.
  bool startProcess(const std::string& kind) {
    try {
      children_.start(next_, kind);
      return true;
    } catch (const SystemError&) {
      if (children_.running() == 0) throw;
      jobs_ = children_.running();
      return false;
    }
  }

  void take(const ChildEnd& end) {
    BulkAnswer answer = end.trouble.empty() ? readAnswer(end.answer) : BulkAnswer();
    if (!end.trouble.empty()) answer.reason = "its process " + end.trouble;
    Report& report = reports_[end.id];
    report.answer = report.answer ? joined(*report.answer, answer) : std::move(answer);
    if (--report.shares > 0) return;
    report.counter.reset();
    const auto time =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - report.start);
    log_.tell(plan_[end.id], *report.answer, time);
    if (options_.failFast && log_.anyFailed()) next_ = plan_.size();
  }

  const BulkOptions& options_;
  const std::vector<PlannedExport>& plan_;
  std::size_t jobs_;
  std::size_t most_shares_;
  BulkLog log_;
  std::vector<Report> reports_;
  std::size_t next_ = 0;
  bool is_walled_ = false;
  ChildRuns children_;
};

// Those of barcodes, which nobody will ever find beside a temporary file.
void deletePicturesBeside(const std::string& file) {
  const std::string start = std::string(baseNameOf(file)) + "_";
  deleteFiles(filesStartingWith(std::string(directoryOf(file)), start), {});
}

}  // namespace

bool runExports(const BulkOptions& options) {
  std::vector<PlannedExport> plan = planExports(options, namedReports(options));
  std::optional<TemporaryFile> input;
  std::optional<TemporaryFile> output;
  for (PlannedExport& planned : plan) {
    if (planned.report == "-") planned.path = input.emplace("").path();
    if (planned.target == "-")
      planned.target = output.emplace(std::string(options.format.extension)).path();
  }
  if (input) input->takeInput();
  rehearse(options);
  const bool done = Workers(options, plan).run();
  for (const auto* file : {&input, &output})
    if (*file) deletePicturesBeside((*file)->path());
  if (output && done) output->giveToOutput();
  return done;
}

}  // namespace qor
