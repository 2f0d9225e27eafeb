// Small texts of the window: dates of files, and numbers in their names.
#include <gtest/gtest.h>

#include "window_model/file_dates.h"
#include "window_model/owner_number.h"

namespace qor::test {
namespace {

TEST(ViewTexts, datesMoveTheHourAlone) {
  const UtcTime late = {2026, 3, 7, 23, 5};
  EXPECT_EQ(fileDateText(late, 0), "07/03/2026  23:05");
  EXPECT_EQ(fileDateText(late, -180), "07/03/2026  26:05");
  EXPECT_EQ(fileDateText({2026, 12, 31, 2, 45}, 300), "31/12/2026  65533:45");
  EXPECT_EQ(fileDateText({2026, 1, 1, 9, 0}, 210), "01/01/2026  6:00") << "whole hours only";
}

TEST(ViewTexts, ownersNumberStandsBeforeTheLastPoint) {
  const std::pair<const char*, std::int32_t> rows[] = {
      {"/tmp/rep1234.txt", 1234}, {"/a.b/rep0042.txt", 42},
      {"r1234.new.txt", 0},       {"/tmp/report.txt", 0},
      {"r12345.txt", 2345},       {"1.txt", 1},
      {"noend1234", 0},           {"", 0}};
  for (const auto& [name, number] : rows) EXPECT_EQ(ownerNumber(name), number) << name;
}

}  // namespace
}  // namespace qor::test
