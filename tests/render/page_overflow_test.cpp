// What lies beyond the sheet. Characters are 120 twips wide, lines 227 high, their baselines 167
// below their tops.
#include "render/page_overflow.h"

#include "support/test.h"

namespace qor::test {
namespace {

TEST(PageOverflow, countsLinesAndColumns) {
  // A report, the right and the lower edge of the sheet, and the lines and columns beyond them.
  std::vector<std::tuple<const char*, Point, int, int>> rows = {
      {"abc\r\ndef", {99999, 99999}, 0, 0},   {"abc\r\nd", {361, 999}, 0, 0},
      {"abc\r\nd", {360, 999}, 0, 1},         {"abc   \r\nd", {361, 999}, 0, 0},
      {"   \r\nd", {130, 999}, 0, 0},         {"abc\r\nabcdef", {300, 999}, 0, 4},
      {"a<b>bc<b/>def", {241, 999}, 0, 4},    {"a\r\nb\r\nc\r\nd", {999, 394}, 2, 0},
      {"a\r\nb\r\nc\r\nd", {999, 393}, 3, 0}, {"a\r\nb\rB\r\nc", {999, 300}, 2, 0},
      {"a\r\n\r\n\r\n  ", {999, 300}, 0, 0}};
  rows.insert(rows.end(),
              {{"<text left=10 top=1 tc=placed/>", {900, 999}, 0, 4},
               {"<text left=1 top=20 tc=placed/>", {9999, 999}, 1, 0},
               {"<text left=1 top=20 o=1 tc=turned/>", {9, 9}, 0, 0},
               {"<barcode value=590123412345 left=1 top=1 right=60 bottom=20/>", {}, 0, 0},
               {"<shape sh_type=5 right=9 bottom=9/>", {}, 0, 0}});
  for (const auto& [bytes, edges, lines, columns] : rows) {
    TestReport report(bytes);
    const PageOverflow overflow = overflowOf(report.page(), {0, 0, edges.x, edges.y});
    EXPECT_EQ(std::pair(overflow.lines, overflow.columns), std::pair(lines, columns)) << bytes;
    EXPECT_EQ(report.names().size(), 1U) << bytes;  // pictures belong to what is painted
  }
}

}  // namespace
}  // namespace qor::test
