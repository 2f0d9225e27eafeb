// Zooms that fit. The printer has 600 dots per inch and A4 paper of 4960 by 7016 dots, the display
// 96: at z percent a sheet takes 7.936 z by 11.2256 z pixels, and its gaps twice a tenth of z.
#include "preview/model/zoom_fit.h"

#include <gtest/gtest.h>

namespace qor::test {
namespace {

constexpr std::int32_t kBar = 15;

VSetPrn printer() {
  VSetPrn measures;
  measures.LogPixelsX = measures.LogPixelsY = 600;
  measures.PhysicalWidth = 4960;
  measures.PhysicalHeight = 7016;
  return measures;
}

struct Row {
  const char* what;
  Extent area;
  std::int32_t width;  // percent that fits the width
  std::int32_t whole;  // percent that fits the page
};

TEST(ZoomFit, ASheetLeavesNoBars) {
  const std::vector<Row> rows = {
      {"985 beside a bar hold 960 and 24, 700 hold 684 and 12", {1000, 700}, 121, 61},
      {"300 hold 293 and 6", {300, 2000}, 37, 37},
      {"exactly as high as 98 percent", {800, 1118}, 98, 98},
      {"a pixel less: the bar at the right would call for one below", {800, 1117}, 97, 97},
      {"never nothing", {1, 1}, 1, 1},
  };
  for (const Row& row : rows) {
    const ScreenArea area = {row.area};
    EXPECT_EQ(fittedToSheet(kWholeWidth, {}, printer(), area, kBar), row.width) << row.what;
    EXPECT_EQ(fittedToSheet(kWholePage, {}, printer(), area, kBar), row.whole) << row.what;
  }
}

TEST(ZoomFit, AWideViewFitsItsContent) {
  struct WideRow {
    Row row;
    Extent content;
  };
  const std::vector<WideRow> rows = {
      {{"58 times 17 are 986, and no bar", {1000, 700}, 58, 58}, {1700, 400}},
      {{"57 times 17 beside a bar", {1000, 700}, 57, 17}, {1700, 4000}},
      {{"the paper, where the content is smaller", {1000, 700}, 124, 62}, {100, 100}},
  };
  for (const auto& [row, content] : rows) {
    const ScreenArea area = {row.area};
    EXPECT_EQ(fittedToContent(kWholeWidth, {}, printer(), area, content, kBar), row.width)
        << row.what;
    EXPECT_EQ(fittedToContent(kWholePage, {}, printer(), area, content, kBar), row.whole)
        << row.what;
  }
}

TEST(ZoomFit, OtherZoomsStay) {
  for (const std::int32_t zoom : {75, 0, kFitWidth, kFitHeight}) {
    EXPECT_EQ(fittedToSheet(zoom, {}, printer(), {{1000, 700}}, kBar), zoom);
  }
  EXPECT_EQ(fittedToSheet(kWholePage, {}, {}, {{1000, 700}}, kBar), 100) << "no paper";
}

}  // namespace
}  // namespace qor::test
