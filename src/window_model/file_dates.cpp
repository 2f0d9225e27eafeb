// Dates as texts.
#include "window_model/file_dates.h"

#include <cstdint>
#include <cstdio>

namespace qor {

std::string fileDateText(const UtcTime& time, int biasMinutes) {
  const auto hour = static_cast<std::uint16_t>(time.hour - biasMinutes / 60);
  char text[64];
  std::snprintf(text, sizeof text, "%.2d/%.2d/%d  %d:%.2d", time.day, time.month, time.year, hour,
                time.minute);
  return text;
}

}  // namespace qor
