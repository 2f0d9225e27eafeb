// Running exports.
#include "bulk/bulk_run.h"

#include <algorithm>
#include <optional>

#include "base/errors.h"
#include "bulk/bulk_log.h"
#include "bulk/export_plan.h"
#include "bulk/report_export.h"
#include "platform/system/messages.h"
#include "platform/system/temporary_file.h"

namespace qor {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::minutes kLongestWait{1};

// The exports at hand, each in a process.
class Workers {
 public:
  Workers(const BulkOptions& options, const std::vector<PlannedExport>& plan)
      : options_(options), plan_(plan), log_(options, plan.size()), starts_(plan.size()) {}

  bool run() {
    while (next_ < plan_.size() || children_.running() > 0) {
      while (children_.running() < options_.jobs && next_ < plan_.size()) start();
      for (const ChildEnd& end : children_.wait(kLongestWait)) tell(end);
    }
    return !log_.anyFailed();
  }

 private:
  void start() {
    const PlannedExport& planned = plan_[next_];
    starts_[next_] = Clock::now();
    children_.start(next_++, options_.limits,
                    [&] { return written(exportReport(planned, options_)); });
  }

  void tell(const ChildEnd& end) {
    BulkAnswer answer = end.trouble.empty() ? readAnswer(end.answer) : BulkAnswer();
    if (!end.trouble.empty()) answer.reason = "its process " + end.trouble;
    const auto time =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - starts_[end.id]);
    log_.tell(plan_[end.id], answer, time);
    if (options_.failFast && log_.anyFailed()) next_ = plan_.size();
  }

  const BulkOptions& options_;
  const std::vector<PlannedExport>& plan_;
  BulkLog log_;
  std::vector<Clock::time_point> starts_;
  ChildRuns children_;
  std::size_t next_ = 0;
};

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
  if (output && done) output->giveToOutput();
  return done;
}

}  // namespace qor
