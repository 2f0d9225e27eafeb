// All exports of a run of qorexport.
#pragma once

#include <vector>

#include "bulk/bulk_options.h"

namespace qor {

// Exports what the options name, several reports at a time. True where nothing failed. Throws
// UsageError and FileError before anything is written; FileError also where the standard output
// can't take what it is to get: the exports at hand are finished then.
bool runExports(const BulkOptions& options);

}  // namespace qor
