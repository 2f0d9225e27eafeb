// What qorexport tells while it runs: reasons on the standard error, lines of JSON on the standard
// output, and on a terminal how far it is.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "bulk/report_export.h"

namespace qor {

class BulkLog {
 public:
  BulkLog(const BulkOptions& options, std::size_t reports);
  ~BulkLog();
  BulkLog(const BulkLog&) = delete;
  BulkLog& operator=(const BulkLog&) = delete;

  // A report has come to its end. Throws FileError where the standard output can't be written.
  void tell(const PlannedExport& planned, const BulkAnswer& answer, std::chrono::milliseconds time);

  bool anyFailed() const { return failed_ > 0; }

 private:
  using Clock = std::chrono::steady_clock;

  void showProgress();
  void clearProgress();

  bool json_;
  bool progress_;
  std::size_t reports_;
  std::size_t ended_ = 0;
  std::size_t failed_ = 0;
  bool is_shown_ = false;  // a line of progress
  Clock::time_point start_ = Clock::now();
  Clock::time_point shown_{};
};

}  // namespace qor
