// Targets must not meet: nothing is written where one report would take the place of another.
#pragma once

#include <vector>

#include "bulk/export_plan.h"

namespace qor {

// Throws UsageError where two reports have the same target, or may have as pictures of their pages,
// and where a target is a report.
void requireApart(const std::vector<PlannedExport>& plan, const BulkFormat& format);

}  // namespace qor
