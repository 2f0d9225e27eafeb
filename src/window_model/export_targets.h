// Where an export goes: which files it would write, and what stands in its way. Nothing is written
// here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "export/export_task.h"

namespace qor {

// The target that a user has typed: without blanks around it, and with "/" for "\" where its
// directory isn't there otherwise.
std::string targetOf(std::string_view typed);

// The files that an export in the format of this id would write; none of a report without pages.
std::vector<std::string> filesOfExport(int format, const std::string& target,
                                       ImageFormatSet pictures, std::int32_t pageCount);

enum class TargetFault {
  none,
  nameMissing,
  lineEnd,  // or a zero byte, in the name
  directory,
  report,  // the file would take its place
  tooLong,
  noDirectory,
  noPermission,
  notRegular,
  nothingToWrite,
};

struct TargetLook {
  TargetFault fault = TargetFault::none;
  std::string file{};                   // at fault
  std::vector<std::string> existing{};  // that the export would replace, where there is no fault
};

// Looks at a target and the files of its export, until it meets a fault.
TargetLook lookAtTarget(const std::string& target, const std::vector<std::string>& files,
                        const std::string& report);

}  // namespace qor
