// Looking at targets.
#include "window_model/export_targets.h"

#include <algorithm>

#include "base/path.h"
#include "base/text.h"
#include "export/export_formats.h"
#include "export/image/picture_names.h"
#include "platform/system/directory.h"
#include "platform/system/write_obstacle.h"

namespace qor {
namespace {

// Characters that no list of names can hold, or that end a name for the system.
constexpr std::string_view kEnds("\r\n\0", 3);

TargetFault faultOfName(const std::string& target) {
  if (target.empty()) return TargetFault::nameMissing;
  if (target.find_first_of(kEnds) != std::string::npos) return TargetFault::lineEnd;
  // Pictures would stand beside it.
  return isDirectory(target) ? TargetFault::directory : TargetFault::none;
}

TargetFault faultOf(WriteObstacle obstacle) {
  switch (obstacle) {
    case WriteObstacle::none: return TargetFault::none;
    case WriteObstacle::directory: return TargetFault::directory;
    case WriteObstacle::notRegular: return TargetFault::notRegular;
    case WriteObstacle::tooLong: return TargetFault::tooLong;
    case WriteObstacle::noDirectory: return TargetFault::noDirectory;
    case WriteObstacle::noPermission: break;
  }
  return TargetFault::noPermission;
}

TargetFault faultOfFile(const std::string& file, const std::string& report) {
  return isSameFile(file, report) ? TargetFault::report : faultOf(obstacleTo(file));
}

}  // namespace

std::string targetOf(std::string_view typed) {
  std::string target(trimmed(typed));
  const std::string directory(directoryOf(target));
  if (directory.find('\\') != std::string::npos && !isDirectory(directory))
    std::replace(target.begin(), target.end(), '\\', '/');
  return target;
}

std::vector<std::string> filesOfExport(int format, const std::string& target,
                                       ImageFormatSet pictures, std::int32_t pageCount) {
  if (pageCount == 0) return {};
  if (format == kExportPictures) return pictureFiles(target, pictures, pageCount);
  return {target};
}

TargetLook lookAtTarget(const std::string& target, const std::vector<std::string>& files,
                        const std::string& report) {
  if (const TargetFault fault = faultOfName(target); fault != TargetFault::none)
    return {fault, target};
  if (files.empty()) return {TargetFault::nothingToWrite, target};
  TargetLook look;
  for (const std::string& file : files) {
    look.fault = faultOfFile(file, report);
    if (look.fault != TargetFault::none) return {look.fault, file};
    if (isTaken(file)) look.existing.push_back(file);
  }
  return look;
}

}  // namespace qor
