// File times, on Linux.
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/system/file_times.h"
#include "platform/system/utc_time.h"

namespace qor {
namespace {

std::optional<struct statx> look(const std::string& path) {
  struct statx found {};
  const int failed = ::statx(AT_FDCWD, path.c_str(), AT_STATX_SYNC_AS_STAT,
                             STATX_BASIC_STATS | STATX_BTIME, &found);
  if (failed != 0) return std::nullopt;
  return found;
}

UtcTime utcOf(const statx_timestamp& stamp) {
  const std::tm parts = utcParts(stamp.tv_sec);
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min};
}

}  // namespace

std::optional<FileTimes> fileTimes(const std::string& path) {
  const auto found = look(path);
  if (!found) return std::nullopt;
  const bool knowsBirth = (found->stx_mask & STATX_BTIME) != 0;
  return FileTimes{utcOf(knowsBirth ? found->stx_btime : found->stx_mtime),
                   utcOf(found->stx_mtime)};
}

int timeZoneBias() {
  ::tzset();
  return static_cast<int>(::timezone / 60);
}

}  // namespace qor
