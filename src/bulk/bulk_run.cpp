// Running exports.
#include "bulk/bulk_run.h"

#include <algorithm>
#include <optional>
#include <utility>

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

// The exports at hand, in processes.
class Workers {
 public:
  Workers(const BulkOptions& options, const std::vector<PlannedExport>& plan)
      : plan_(plan),
        fail_fast_(options.failFast),
        jobs_(options.jobs),
        log_(options, plan.size()),
        starts_(plan.size()),
        children_(workOf(options, plan), options.limits) {}

  bool run() {
    while (next_ < plan_.size() || children_.running() > 0) {
      while (children_.running() < jobs_ && next_ < plan_.size()) start();
      for (const ChildEnd& end : children_.wait(kLongestWait)) tell(end);
    }
    return !log_.anyFailed();
  }

 private:
  // The wall of the first report is that of all that a process exports.
  static ChildWork workOf(const BulkOptions& options, const std::vector<PlannedExport>& plan) {
    return [&options, &plan, isWalled = false](std::size_t id) mutable {
      const BulkAnswer answer = exportReport(
          plan[id], options, std::exchange(isWalled, true) ? Wall::stands : Wall::raised);
      return ChildAnswer{written(answer), answer.leavesNothing};
    };
  }

  void start() {
    starts_[next_] = Clock::now();
    children_.start(next_, placesOf(plan_[next_]));
    ++next_;
  }

  void tell(const ChildEnd& end) {
    BulkAnswer answer = end.trouble.empty() ? readAnswer(end.answer) : BulkAnswer();
    if (!end.trouble.empty()) answer.reason = "its process " + end.trouble;
    const auto time =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - starts_[end.id]);
    log_.tell(plan_[end.id], answer, time);
    if (fail_fast_ && log_.anyFailed()) next_ = plan_.size();
  }

  const std::vector<PlannedExport>& plan_;
  bool fail_fast_;
  std::size_t jobs_;
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
