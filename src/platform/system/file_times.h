// When files were made and changed.
#pragma once

#include <optional>
#include <string>

namespace qor {

struct UtcTime {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;
  int hour = 0;
  int minute = 0;
};

struct FileTimes {
  UtcTime created;  // where the file system doesn't tell: modified
  UtcTime modified;
};

// Nothing where the file can't be looked at.
std::optional<FileTimes> fileTimes(const std::string& path);

// Minutes that local standard time, without summer time, lacks to UTC: -180 for three hours east.
int timeZoneBias();

}  // namespace qor
