// The exports at hand, in processes. Those that have nothing else to do take part in the pictures
// of a long report.
#pragma once

#include <chrono>
#include <cstddef>
#include <exception>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "bulk/bulk_answer.h"
#include "bulk/bulk_log.h"
#include "bulk/bulk_options.h"
#include "bulk/export_plan.h"
#include "platform/system/child_runs.h"
#include "platform/system/shared_counter.h"

namespace qor {

class BulkWorkers {
 public:
  // Options and plan must live as long.
  BulkWorkers(const BulkOptions& options, const std::vector<PlannedExport>& plan);

  // Exports all of the plan. True where nothing failed. Throws FileError where the standard output
  // can't take what it is to get: the exports at hand are finished then, and told.
  bool run();

 private:
  using Clock = std::chrono::steady_clock;

  // A report while it is exported.
  struct Report {
    Clock::time_point start{};
    std::string places{};                    // what its wall depends on
    std::optional<SharedCounter> counter{};  // where several processes may share its pages
    std::size_t processes = 0;               // that are at it
    std::size_t helpers = 0;                 // that were, beside the first one
    std::optional<BulkAnswer> answer{};      // of those that have ended
  };

  ChildAnswer work(std::size_t id);
  bool isShared(const PlannedExport& planned) const;
  bool mustWait(const PlannedExport& planned) const;
  bool startNext();
  bool help();
  bool startProcess(std::size_t id);
  void take(const ChildEnd& end);
  void tell(std::size_t id);

  const BulkOptions& options_;
  const std::vector<PlannedExport>& plan_;
  std::size_t jobs_;
  BulkLog log_;
  std::vector<Report> reports_;
  std::set<std::size_t> shared_;           // reports at hand that others may help with
  std::multiset<std::string> side_stems_;  // of reports at hand
  std::size_t next_ = 0;
  bool is_walled_ = false;  // in a child
  std::exception_ptr log_failure_;
  ChildRuns children_;
};

}  // namespace qor
