// The calendar, on POSIX.
#include "platform/system/utc_time.h"

namespace qor {

std::tm utcParts(std::time_t time) {
  std::tm parts{};
  ::gmtime_r(&time, &parts);
  return parts;
}

}  // namespace qor
