// The report of a print job, drawn as PDF.
#pragma once

#include <string>

namespace qor {

struct FilterJob;

// Writes the document to the standard output, all of it or nothing, and gives what it lacks: one
// line, or none. Throws Error and UsageError. What a client says of the job leads to no file but
// those of the administrator's directory, which becomes the current one.
std::string filterReport(const FilterJob& job);

}  // namespace qor
