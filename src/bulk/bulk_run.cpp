// Running exports.
#include "bulk/bulk_run.h"

#include <algorithm>
#include <optional>

#include "base/app_options.h"
#include "bulk/bulk_workers.h"
#include "bulk/export_plan.h"
#include "bulk/report_export.h"
#include "bulk/settings_check.h"
#include "platform/system/directory.h"
#include "platform/system/temporary_file.h"

namespace qor {

bool runExports(const BulkOptions& options) {
  std::vector<PlannedExport> plan = planExports(options, namedReports(options));
  requireSet(options.setFile.empty() ? "" : fullPath(options.setFile), options.setName);
  std::optional<TemporaryFile> input;
  std::optional<TemporaryFile> output;
  for (PlannedExport& planned : plan) {
    if (planned.report == "-") planned.path = input.emplace("stdin").path();
    if (planned.target == "-")
      planned.target = output.emplace("stdout" + std::string(options.format.extension)).path();
  }
  if (input) input->takeInput();
  rehearse(options);
  AppOptions.FileName = "qorexport";
  const bool done = BulkWorkers(options, plan).run();
  if (output && done) output->giveToOutput();
  return done;
}

}  // namespace qor
