// Shapes and pictures as dots of a page: hatches, dashes, widths, corners, colours.
#include "support/page_picture.h"
#include "support/test.h"

namespace qor::test {
namespace {

// In how many rows, columns and diagonals of a square of 32 dots every dot is ink.
std::string fullLines(const Picture& page, int left, int top) {
  constexpr int kSide = 32;
  const auto count = [](auto isInkAt) {
    int full = 0;
    for (int line = 0; line < kSide; ++line) {
      bool whole = true;
      for (int i = 0; i < kSide; ++i) whole = whole && isInkAt(line, i);
      full += whole ? 1 : 0;
    }
    return std::to_string(full);
  };
  const auto ink = [&](int x, int y) { return isInk(page, left + x, top + y); };
  return count([&](int line, int i) { return ink(i, line); }) + " level " +
         count([&](int line, int i) { return ink(line, i); }) + " upright " +
         count([&](int line, int i) { return ink(i, line - i); }) + " rising " +
         count([&](int line, int i) { return ink(i, line + i); }) + " falling";
}

TEST(ShapeDots, hatchesRunTheirWayEightDotsApart) {
  const std::pair<int, const char*> rows[] = {
      {2, "0 level 0 upright 4 rising 0 falling"},    {3, "4 level 4 upright 0 rising 0 falling"},
      {4, "0 level 0 upright 4 rising 4 falling"},    {5, "0 level 0 upright 0 rising 4 falling"},
      {6, "4 level 0 upright 0 rising 0 falling"},    {7, "0 level 4 upright 0 rising 0 falling"},
      {1, "32 level 32 upright 32 rising 32 falling"}};
  std::string report;
  for (const auto& [type, lines] : rows) {
    const int left = 10 + 25 * (type - 1);
    report += itemTag("shape", {left, 10, left + 22, 40},
                      "sh_type=2 pt=0 bcRGB=\"120,30,9\" bt=" + std::to_string(type));
  }
  const Picture page = pictureOf(report);
  for (const auto& [type, lines] : rows) {
    const int left = wholeDotOf(10 + 25 * (type - 1));
    EXPECT_EQ(fullLines(page, left + 8, 80), lines) << type;
    const bool straight = type != 2 && type != 4 && type != 5;
    bool hasColor = false;
    for (int x = 0; x < 16; ++x) hasColor |= dotAt(page, left + 8 + x, 88) == 0x781E09;
    EXPECT_TRUE(hasColor || !straight) << type;
  }
}

// The lengths of ink and of paper along a row, from its first dot of ink on.
std::string runsOf(const Picture& page, int y, int count) {
  int x = 0;
  while (x < page.width && !isInk(page, x, y)) ++x;
  std::string runs;
  for (int i = 0; i < count; ++i) {
    const int start = x;
    const bool ink = isInk(page, x, y);
    while (x < page.width && isInk(page, x, y) == ink) ++x;
    runs += " " + std::to_string(x - start);
  }
  return runs;
}

int rowsOfInk(const Picture& page, int x, int y) {
  int first = y;
  while (isInk(page, x, first - 1)) --first;
  while (isInk(page, x, y)) ++y;
  return y - first;
}

// The patterns are those of the screens that the styles come from: dots for thin pens.
TEST(ShapeDots, pensHaveTheirPatternsAndWidths) {
  // The keys, the width, and the runs from the start.
  const auto rows = rowsOf(
      "pt=1 => 1: 378 |pt=2 => 1: 18 6 18 6 18 6|pt=3 => 1: 3 3 3 3 3 3|pt=4 => 1: 9 6 3 6 9 6|"
      "pt=5 => 1: 9 3 3 3 3 3 9 3|pt=2 lw=90 => 6: 36 12 36 12|pt=5 lw=60 => 4: 12 4 4 4 4 4 12 4|"
      "pt=7 lw=0 => 1: 378 |pt=1 lw=22 => 1: 378 |pt=1 lw=23 => 2: 378 ",
      " => ");
  std::string report;
  for (int top = 10; const auto& [keys, expected] : rows) {
    report += itemTag("shape", {10, top, 110, top}, keys);
    top += 10;
  }
  const Picture page = pictureOf(report);
  for (int top = 10; const auto& [keys, expected] : rows) {
    const int y = wholeDotOf(top);
    const auto count = static_cast<int>(std::ranges::count(expected, ' '));
    const std::string found = std::to_string(rowsOfInk(page, 39, y)) + ":" + runsOf(page, y, count);
    EXPECT_EQ(found.substr(0, expected.size()), expected) << keys;
    top += 10;
  }
}

TEST(ShapeDots, cornersAreRoundedByWidthAndHeight) {
  // From 75,113 to 378,227; a corner is a quarter of 40 by 10 dots.
  const std::string keys = "sh_type=3 rw=1200 rh=300 pcRGB=\"0,0,90\"";
  const Picture page = pictureOf(itemTag("shape", {20, 30, 100, 60}, keys));
  EXPECT_EQ(dotAt(page, 75 + 20, 113), 0xFFFFFFU);
  EXPECT_EQ(dotAt(page, 75 + 42, 113), 0x00005AU);
  EXPECT_EQ(dotAt(page, 75, 113 + 5), 0xFFFFFFU);
  EXPECT_EQ(dotAt(page, 75, 113 + 12), 0x00005AU);
  EXPECT_EQ(dotAt(page, 377, 226 - 12), 0x00005AU);
  EXPECT_EQ(dotAt(page, 377 - 20, 226), 0xFFFFFFU);
}

TEST(ShapeDots, picturesKeepTheirColoursAndDirections) {
  const TemporaryDirectory place;
  run({"convert-im6.q16", "-size",   "10x10", "(",       "xc:#C00000",
       "xc:#00C000",      "+append", ")",     "(",       "xc:#0000C0",
       "xc:#C0C000",      "+append", ")",     "(",       "xc:#00C0C0",
       "xc:#C000C0",      "+append", ")",     "-append", place.path("cells.png")});
  run({"convert-im6.q16", "-size", "40x40", "xc:none", "-fill", "#FF000080", "-draw",
       "rectangle 0,0 19,39", place.path("half.png")});
  const std::string report =
      itemTag("img", {10, 20, 50, 80}, "image=\"cells.png\" imgSS=1") +
      itemTag("shape", {60, 20, 80, 40}, "sh_type=2 bt=1 pt=0 bcRGB=\"0,0,255\"") +
      itemTag("img", {62, 22, 0, 0}, "image=\"half.png\"");
  for (const Road road : kRoads) {
    SCOPED_TRACE(static_cast<int>(road));
    const Picture page = pageBy(road, place, report);
    const std::uint32_t cells[] = {0xC00000, 0x00C000, 0x0000C0, 0xC0C000, 0x00C0C0, 0xC000C0};
    for (int i = 0; i < 6; ++i) {
      const int x = wholeDotOf(20 + 20 * (i % 2));
      const int y = wholeDotOf(30 + 20 * (i / 2));
      EXPECT_EQ(dotAt(page, x, y), cells[i]) << i;
    }
    // Half of red over blue, or over white on the road that fills nothing.
    const bool filled = road != Road::document;
    const int x = wholeDotOf(62);
    const int y = wholeDotOf(22);
    const std::uint32_t mixed = dotAt(page, x + 10, y + 20);
    EXPECT_NEAR(static_cast<int>(mixed >> 16), filled ? 128 : 255, 2);
    EXPECT_NEAR(static_cast<int>(mixed >> 8 & 0xFF), filled ? 0 : 127, 2);
    EXPECT_NEAR(static_cast<int>(mixed & 0xFF), 127, 2);
    EXPECT_EQ(dotAt(page, x + 30, y + 20), filled ? 0x0000FFU : 0xFFFFFFU);
  }
}

void writePicture(const std::string& path, std::uint32_t color) {
  std::string parts = "xc:rgb(";
  for (const int shift : {16, 8, 0})
    parts += std::to_string(color >> shift & 0xFF) + (shift > 0 ? "," : ")");
  run({"convert-im6.q16", "-size", "16x16", parts, path});
}

// More of them than are kept decoded, most of them files of one length.
TEST(ShapeDots, picturesAreTakenForNoOther) {
  const TemporaryDirectory place;
  // The name on the disk, and that in the report.
  auto names = rowsOf(
      "a.png:a.png|b.jpg:b.jpg|c.jpeg:c.jpeg|d.gif:d.gif|e.ico:e.ico|f.bmp:.\\f.bmp|"
      "Ж.PNG:\x86.PNG|g h.bmp:g h.bmp",
      ":");
  for (char c = 'i'; c < 't'; ++c)
    names.emplace_back(c + std::string(".bmp"), c + std::string(".bmp"));
  std::string report;
  std::vector<std::pair<Rect, std::uint32_t>> seen;
  for (int round = 0; round < 3; ++round) {
    for (std::uint32_t i = 0; i < names.size(); ++i) {
      const std::uint32_t color = i * 0x0B0000 | (200 - i * 9) << 8 | (i % 2 == 0 ? 30 : 90);
      if (round == 0) writePicture(place.path(names[i].first), color);
      const int left = 5 + 10 * static_cast<int>(round == 1 ? names.size() - i : i);
      const Rect box = {left, 10 + 20 * round, left + 8, 18 + 20 * round};
      report += itemTag("img", box, "imgSS=1 image=\"" + names[i].second + "\"");
      seen.emplace_back(box, color);
    }
  }
  for (const Road road : kRoads) {
    const Picture page = pageBy(road, place, report);
    for (const auto& [spot, color] : seen) {
      const auto x = wholeDotOf(spot.left + 4);
      const auto y = wholeDotOf(spot.top + 4);
      EXPECT_LE(apart(dotAt(page, x, y), color), 4) << static_cast<int>(road) << " " << text(spot);
    }
  }
}

TEST(ShapeDots, pagesStartWithPensAndBrushesOfTheirOwn) {
  const TemporaryDirectory place;
  for (const Road road : kRoads) {
    const Picture page = pageBy(road, place,
                                "<shape sh_type=2 bt=1 bc=Red right=9 bottom=9/>\r\n\f"
                                "<img imgn=3 left=20 top=20 right=60 bottom=40/>\r\n",
                                "866", 2);
    EXPECT_EQ(dotAt(page, wholeDotOf(22), wholeDotOf(22)), 0xFFFFFFU) << static_cast<int>(road);
  }
}

}  // namespace
}  // namespace qor::test
