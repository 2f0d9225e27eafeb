// What is told of the speed of long jobs.
#include "window_model/job_speed.h"

#include "support/test.h"

namespace qor::test {
namespace {

TEST(JobSpeed, isToldFromFiveSecondsOn) {
  // Pages done, pages in all, milliseconds taken.
  const std::tuple<int, int, int, const char*> rows[] = {
      {100, 1000, 5000, ""},
      {120, 1080, 6000, "20 pages a second, 48 s left"},
      {120, 1081, 6000, "20 pages a second, 49 s left"},
      {57, 60, 6000, "9.5 pages a second, 1 s left"},
      {60, 1260, 6000, "10 pages a second, 120 s left"},
      {63, 6063, 6000, "11 pages a second, 10 min left"},
      {1, 7, 20000, "0.1 pages a second, 120 s left"},
      {6000, 6000, 60000, "100 pages a second, 0 s left"}};
  for (const auto& [page, pages, taken, text] : rows)
    EXPECT_EQ(jobSpeedText(page, pages, std::chrono::milliseconds(taken)), text);
}

}  // namespace
}  // namespace qor::test
