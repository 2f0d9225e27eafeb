// One export of qorexport, in a process of its own.
#pragma once

#include <cstdint>
#include <string>

#include "bulk/bulk_options.h"
#include "bulk/export_plan.h"
#include "export/page_share.h"

namespace qor {

enum class BulkResult { done, skipped, failed };

struct BulkAnswer {
  BulkResult result = BulkResult::failed;
  std::int32_t pages = 0;
  std::uint64_t bytes = 0;  // of the files
  std::size_t files = 0;
  std::string reason;          // one line: why it failed, or what the files lack
  bool leavesNothing = false;  // the process is as good as before
};

// How a process takes part in an export.
struct ExportPart {
  bool isWalled = false;       // the wall stands from the report before
  std::size_t processors = 1;  // for a long document
  PageShare* share = nullptr;  // the pages whose pictures it makes where others make the rest
};

// Exports the report behind a wall, and throws nothing.
BulkAnswer exportReport(const PlannedExport& planned, const BulkOptions& options,
                        const ExportPart& part);

// What several processes came to that exported shares of a report.
BulkAnswer joined(const BulkAnswer& first, const BulkAnswer& second);

// Exports a text of its own to nowhere, so that a process which is copied later has read the fonts
// and loaded the libraries that most reports need. What goes wrong there goes wrong again, and is
// told then.
void rehearse(const BulkOptions& options);

// An answer as it goes from one process to another. One that is none is that of a failure.
std::string written(const BulkAnswer& answer);
BulkAnswer readAnswer(const std::string& text);

}  // namespace qor
