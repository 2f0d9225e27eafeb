// Which reports are exported to which targets.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bulk/bulk_options.h"

namespace qor {

struct PlannedExport {
  std::string report;  // as it was named
  std::string path;    // where it is read
  std::string target;  // a file; {page} in it stands for the number of a picture's page
};

// What stands for the number of a page in a template, and in a target until it is known.
inline constexpr std::string_view kPage = "{page}";

// What the operands and the list name, in their order. Throws FileError where the list can't be
// read.
std::vector<std::string> namedReports(const BulkOptions& options);

// A target for each report, reports that are named again left out. Throws UsageError where the
// template says nothing of a report, where two reports have the same target, and where a target is
// a report.
std::vector<PlannedExport> planExports(const BulkOptions& options,
                                       const std::vector<std::string>& reports);

// What the wall around an export depends on: the directories, and what links lead to. Exports that
// have it in common may follow each other behind one wall.
std::string placesOf(const PlannedExport& planned);

// Whether the targets of pages tell their numbers where the template says so.
bool namesPages(const BulkOptions& options);

// A target with the number of a page in it.
std::string withPage(const std::string& target, std::int32_t page);

}  // namespace qor
