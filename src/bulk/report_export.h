// One export of qorexport, in a process of its own.
#pragma once

#include <cstddef>

#include "bulk/bulk_answer.h"
#include "bulk/bulk_options.h"
#include "bulk/export_plan.h"
#include "export/page_share.h"

namespace qor {

// How a process takes part in an export.
struct ExportPart {
  bool isWalled = false;       // the wall stands from the report before
  std::size_t processors = 1;  // for a long document
  PageShare* share = nullptr;  // the pages whose pictures it makes where others make the rest
};

// Exports the report behind a wall, and throws nothing.
BulkAnswer exportReport(const PlannedExport& planned, const BulkOptions& options,
                        const ExportPart& part);

// Exports a text of its own to nowhere, so that a process which is copied later has read the fonts
// and loaded the libraries that most reports need. What goes wrong there goes wrong again, and is
// told then.
void rehearse(const BulkOptions& options);

}  // namespace qor
