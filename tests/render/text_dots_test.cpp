// Text as dots of a page: strokes, faces made bold or slanted, lines and blocks.
#include <cmath>

#include "platform/system/text_encoding.h"
#include "support/page_picture.h"
#include "support/test.h"

namespace qor::test {
namespace {

std::string placed(int left, int top, const std::string& keys) {
  return itemTag("text", {left, top, 0, 0}, keys);
}

// Blanks show nothing but their strokes. At 60 points an em is 80 dots; the face has 2048 units, an
// ascent of 1705, an advance of 1229, an underline of 84 from 393 below the baseline down, a
// strike-out of 102 from 530 above it down.
TEST(TextDots, strokesFollowTheFaceAndTheTurn) {
  // The keys, the left in millimetres, and the ink. The baseline is 66.6 dots below the top, the
  // four blanks are 192.03 long.
  const std::tuple<const char*, int, const char*> rows[] = {
      {"fu=1", 20, "75,460 268,463"},       {"fso=1", 20, "75,424 268,428"},
      {"fu=1 o=1", 20, "157,185 161,378"},  {"fso=1 o=1", 20, "121,185 126,378"},
      {"fu=1 o=2", 100, "185,292 378,296"}, {"fu=1 o=3", 60, "141,377 145,570"}};
  for (const auto& [keys, left, box] : rows) {
    const std::string blanks = std::string("height=60 fcRGB=\"9,9,9\" tc=\"    \" ") + keys;
    EXPECT_EQ(text(inkBox(pictureOf(placed(left, 100, blanks)))), box) << keys;
  }
}

// The box goes from 75.53, 377.93 to 453.53, 604.67; three blanks of 20 points, each with 170 twips
// behind it, are 82.01 long and 30.2 high, their stroke lies 27.86 below their top.
TEST(TextDots, boxesAlignTextsWithTheirSpaces) {
  const Rect boxes[] = {{75, 405, 158, 406}, {223, 504, 306, 505}, {371, 602, 454, 603}};
  for (int i = 0; i < 9; ++i) {
    const int h = i % 3, v = i / 3;
    const std::string keys = "height=20 hs=3 fu=1 tc=\"   \" alignH=" + std::to_string(h) +
                             " alignV=" + std::to_string(v);
    EXPECT_EQ(text(inkBox(pictureOf(itemTag("text", {20, 100, 120, 160}, keys)))),
              text({boxes[h].left, boxes[v].top, boxes[h].right, boxes[v].bottom}));
  }
}

// At 19 points a blank is 228.04 twips wide, less 226: 4100 of them end at 556.8 dots, however they
// are painted.
TEST(TextDots, longTextsGoOnWhereTheyAre) {
  const Rect ink =
      inkBox(pictureOf("<font height=19 hs=-4/>" + std::string(4100, ' ') + "<font hs=0 fu=1/>  "));
  EXPECT_EQ(std::pair(ink.left, ink.right), std::pair(556, 588));
}

// Glyphs stand at quarters of a dot, so that gaps are even where an advance is no whole dot.
TEST(TextDots, lettersStandInEvenSteps) {
  constexpr double kAdvance = 11 * 20 * 1229 / 2048.0 / 15;
  const Picture page = pictureOf(placed(20, 20, "height=11 tc=\"" + std::string(20, '|') + "\""));
  const auto centre = [&page](double left) {
    double sum = 0;
    double ink = 0;
    for (int x = static_cast<int>(left); x < left + kAdvance; ++x) {
      const int dark = 255 - static_cast<int>(dotAt(page, x, wholeDotOf(22)) & 0xFF);
      sum += dark * (x + 0.5);
      ink += dark;
    }
    return sum / ink;
  };
  const double first = centre(dotOf(20));
  for (int i = 1; i < 20; ++i)
    EXPECT_NEAR(centre(dotOf(20) + i * kAdvance) - first, i * kAdvance, 0.27) << i;
}

// The face has one style only, and a square.
TEST(TextDots, missingStylesAreMade) {
  for (const Road road : {Road::picture, Road::print}) {
    SCOPED_TRACE(static_cast<int>(road));
    std::string report;
    const std::string square = "fn=D050000L height=60 tc=\"\xFE\" ";
    for (const auto& [top, keys] :
         {std::pair{20, ""}, {60, "fb=1"}, {100, "fi=1"}, {140, "fi=1 fb=1"}})
      report += placed(30, top, square + keys);
    const Picture page = pageBy(road, TemporaryDirectory(), report);
    const auto inkAt = [&page](int top) {
      const auto first = wholeDotOf(top);
      return inkBox(page, {0, first, page.width, first + 140});
    };
    const auto width = [](const Rect& box) { return box.right - box.left; };
    const Rect plain = inkAt(20);
    const int height = plain.bottom - plain.top;
    EXPECT_GT(height, 40);
    // An em is 80 dots; both ways of making bold add between a fiftieth and a tenth of it.
    EXPECT_NEAR(width(inkAt(60)) - width(plain), 4, 2.5);
    // Slanted by 12 to 14 degrees.
    EXPECT_NEAR(width(inkAt(100)) - width(plain), height * 0.23, height * 0.04 + 1);
    EXPECT_GT(width(inkAt(140)), width(inkAt(100)) + 1);
  }
}

// The first of each row as a letter of its own on a page, 40 points high: its cell is 32.005
// by 60.4 dots. Gives the page and the cells.
std::pair<Picture, std::vector<Rect>> lettersOf(
    const std::vector<std::pair<std::string, std::string>>& rows) {
  constexpr int kColumns = 10;
  std::string report;
  std::vector<Rect> cells;
  for (const auto& [letter, expected] : rows) {
    const int count = static_cast<int>(cells.size());
    const int left = 10 + 15 * (count % kColumns);
    const int top = 10 + 25 * (count / kColumns);
    report +=
        placed(left, top,
               "height=40 tc=\"" + codePageFromUtf8(letter, 866, Substitute::questionMark) + "\"");
    const auto dot = [](double place) { return static_cast<int>(std::lround(place)); };
    cells.push_back(
        {dot(dotOf(left)), dot(dotOf(top)), dot(dotOf(left) + 32.005), dot(dotOf(top) + 60.4)});
  }
  return {pictureOf(report), cells};
}

// The strokes at the left, upper, right and lower edge, by the names of the characters.
TEST(TextDots, boxLinesReachTheEdgesThatTheirNamesTell) {
  const auto rows = rowsOf(
      "─ 1010|│ 0101|┌ 0011|┐ 1001|└ 0110|┘ 1100|├ 0111|┤ 1101|┬ 1011|┴ 1110|┼ 1111|═ 2020|║ 0202|"
      "╒ 0021|╓ 0012|╔ 0022|╕ 2001|╖ 1002|╗ 2002|╘ 0120|╙ 0210|╚ 0220|╛ 2100|╜ 1200|╝ 2200|╞ 0121|"
      "╟ 0212|╠ 0222|╡ 2101|╢ 1202|╣ 2202|╤ 2021|╥ 1012|╦ 2022|╧ 2120|╨ 1210|╩ 2220|╪ 2121|╫ 1212|"
      "╬ 2222");
  const auto [page, cells] = lettersOf(rows);
  // A tenth of the cell's width.
  const Rect level = inkBox(page, cells[0]);
  EXPECT_EQ(level.bottom - level.top, 3);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Rect& cell = cells[i];
    const auto strokes = [&page = page](int x, int y, int stepX, int stepY, int length) {
      int count = 0;
      bool before = false;
      for (int n = 0; n < length; ++n) {
        const bool ink = isInk(page, x + n * stepX, y + n * stepY);
        if (ink && !before) ++count;
        before = ink;
      }
      return std::to_string(count);
    };
    const int width = cell.right - cell.left;
    const int height = cell.bottom - cell.top;
    EXPECT_EQ(strokes(cell.left, cell.top, 0, 1, height) +
                  strokes(cell.left, cell.top, 1, 0, width) +
                  strokes(cell.right - 1, cell.top, 0, 1, height) +
                  strokes(cell.left, cell.bottom - 1, 1, 0, width),
              rows[i].second)
        << rows[i].first;
    EXPECT_EQ(text(inkBox(page, cell)),
              text(inkBox(page, {cell.left - 3, cell.top - 3, cell.right + 3, cell.bottom + 3})));
  }
}

// Quarters of ink in the upper left and right and the lower left and right of the cell.
TEST(TextDots, blocksFillTheirPartOfTheCell) {
  const auto rows = rowsOf("▀ 4400|▄ 0044|█ 4444|▌ 4040|▐ 0404|░ 1111|▒ 2222|▓ 3333");
  const auto [page, cells] = lettersOf(rows);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Rect& cell = cells[i];
    for (std::size_t part = 0; part < 4; ++part) {
      const int x = part % 2 == 0 ? cell.left + 2 : cell.right - 3;
      const int y = part < 2 ? cell.top + 2 : cell.bottom - 3;
      EXPECT_NEAR(255 - static_cast<int>(dotAt(page, x, y) & 0xFF),
                  (rows[i].second[part] - '0') * 64, 2)
          << rows[i].first << part;
    }
  }
}

}  // namespace
}  // namespace qor::test
