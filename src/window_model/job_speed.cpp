// The speed of jobs.
#include "window_model/job_speed.h"

#include <cmath>

#include "settings/number_text.h"
#include "window_model/preview_texts.h"

namespace qor {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kWarmUp{5000};
constexpr double kTelling = 10;       // pages a second, from which on tenths tell nothing
constexpr double kSecondsTold = 120;  // more are told in minutes

// With a tenth where it is slow.
std::string speedText(double pagesPerSecond) {
  const double unit = pagesPerSecond < kTelling ? 10 : 1;
  const std::string number = FloatToStr(std::round(pagesPerSecond * unit) / unit);
  return withText(previewTexts().speed, number);
}

std::string leftText(double seconds) {
  const PreviewTexts& texts = previewTexts();
  if (seconds > kSecondsTold) return withNumber(texts.minutesLeft, std::lround(seconds / 60));
  return withNumber(texts.secondsLeft, static_cast<std::int64_t>(std::ceil(seconds)));
}

}  // namespace

std::string jobSpeedText(std::int32_t page, std::int32_t pages, milliseconds taken) {
  if (taken <= kWarmUp) return {};
  const double seconds = std::chrono::duration<double>(taken).count();
  const double speed = page / seconds;
  return speedText(speed) + leftText((pages - page) / speed);
}

}  // namespace qor
