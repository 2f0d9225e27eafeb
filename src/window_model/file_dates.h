// The dates of the report's file, as the status bar shows them.
#pragma once

#include <string>

#include "platform/system/file_times.h"

namespace qor {

// Such as "07/03/2026  9:05". The date is of UTC; the hour is moved by the time zone without any
// carry into the day, so that it may read 24 and more, or, below 0, come around at 65536.
// `biasMinutes` is what local standard time lacks to UTC: -180 for three hours east.
std::string fileDateText(const UtcTime& time, int biasMinutes);

}  // namespace qor
