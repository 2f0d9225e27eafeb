// Selections on a page, and what is copied of them. Characters are 120 twips wide, lines 227 high.
#include "support/letter_rules.h"
#include "support/test.h"
#include "window_model/copied_text.h"
#include "window_model/text_grid.h"

namespace qor::test {
namespace {

using Kind = SelectionKind;

class Page {
 public:
  explicit Page(std::string_view bytes, int codePage = 1251)
      : report_(bytes, codePage), map(report_.page(), DocumentLetters(codePage)) {}

 private:
  TestReport report_;

 public:
  TextMap map;
};

// A spot at a column and in the middle of a line.
Spot at(double column, int line) {
  return {column * 120, line * 227 + 113.0};
}

std::string copied(const TextMap& map, const TextSelection& selection) {
  return selection.isEmpty() ? "" : plainText(copiedRows(map, selection));
}

std::string copied(const TextMap& map, Kind kind, Spot from, Spot to) {
  TextSelection selection;
  selection.start(map, kind, from);
  selection.extend(map, to);
  return copied(map, selection);
}

TEST(TextSelection, copiesWhatItCovers) {
  const Page page("Name   Qty\r\n apple   12\r\n\r\npear     7  \r\n");
  const std::tuple<Kind, Spot, Spot, const char*> rows[] = {
      {Kind::lines, at(0, 0), at(4, 0), "Name"},
      {Kind::lines, at(2.4, 0), at(2.3, 0), ""},
      {Kind::lines, at(7, 0), at(0, 0), "Name"},
      {Kind::lines, at(7, 0), at(3, 1), "       Qty\n ap"},
      {Kind::lines, at(20, 9), at(0, 0), "Name   Qty\n apple   12\n\npear     7"},
      {Kind::lines, at(0, 2), at(4, 3), "pear"},
      {Kind::rectangle, at(1, 0), at(3, 3), "am\nap\nea"},
      {Kind::rectangle, at(10.4, 3), at(6.6, 0), "Qty\n  1\n  7"},
      {Kind::rectangle, at(9.6, 1), at(6.4, 1), "   1"},
      {Kind::rectangle, at(11, 0), at(11, 3), ""}};
  for (const auto& [kind, from, to, expected] : rows)
    EXPECT_EQ(copied(page.map, kind, from, to), expected) << from.x << " to " << to.x;
}

TEST(TextSelection, takesWordsLinesAndThePage) {
  const Page page("to 1,234.50 (a-b).\r\n  x\xE9y_1 31/12/2024\xA0");
  const std::tuple<double, int, const char*> rows[] = {
      {0.1, 0, "to"}, {1.9, 0, "to"},    {3.1, 0, "1,234.50"}, {10.9, 0, "1,234.50"},
      {12.5, 0, "("}, {13.5, 0, "a-b"},  {17.9, 0, "."},       {99, 0, "."},
      {0.5, 1, ""},   {2.2, 1, "xйy_1"}, {9, 1, "31/12/2024"}};
  TextSelection selection;
  for (const auto& [column, line, word] : rows) {
    selection.takeWord(page.map, at(column, line), kTestLetters);
    EXPECT_EQ(copied(page.map, selection), word) << column;
  }
  selection.takeLine(page.map, at(3, 0));
  EXPECT_EQ(copied(page.map, selection), "to 1,234.50 (a-b).");
  selection.takePage(page.map);
  EXPECT_EQ(copied(page.map, selection), "to 1,234.50 (a-b).\n  xйy_1 31/12/2024");
}

// From the gap before "d" on: l and r a character, u and d a line, h and e to the ends of the line,
// P and N two lines up or down.
TEST(TextSelection, isExtendedByKeys) {
  const Page page("abc\r\nbcdefg\r\nhi\r\njklmno\r\n");
  const std::pair<const char*, const char*> rows[] = {{"", ""},
                                                      {"r", "d"},
                                                      {"l", "c"},
                                                      {"llll", "  c\nbc"},
                                                      {"e", "defg"},
                                                      {"h", "bc"},
                                                      {"rrrrrr", "  defg\nh"},
                                                      {"u", "  c\nbc"},
                                                      {"d", "  defg\nhi"},
                                                      {"rd", "  defg\nhi"},
                                                      {"rdd", "  defg\nhi\njkl"},
                                                      {"N", "  defg\nhi\njk"},
                                                      {"P", "  c\nbc"},
                                                      {"uuuu", "  c\nbc"}};
  for (const auto& [keys, expected] : rows) {
    TextSelection selection;
    selection.start(page.map, Kind::lines, at(2, 1));
    for (const char key : std::string_view(keys)) {
      switch (key) {
        case 'P': selection.moveDown(page.map, -454); break;
        case 'N': selection.moveDown(page.map, 454); break;
        default:
          selection.move(page.map,
                         std::map<char, SelectionMove>{{'l', SelectionMove::left},
                                                       {'r', SelectionMove::right},
                                                       {'u', SelectionMove::up},
                                                       {'d', SelectionMove::down},
                                                       {'h', SelectionMove::lineStart},
                                                       {'e', SelectionMove::lineEnd}}[key]);
      }
    }
    EXPECT_EQ(copied(page.map, selection), expected) << keys;
  }
  TextSelection box;
  box.start(page.map, Kind::rectangle, at(1, 1));
  for (const auto move : {SelectionMove::lineEnd, SelectionMove::down, SelectionMove::left})
    box.move(page.map, move);
  EXPECT_EQ(copied(page.map, box), "cdef\ni");
  EXPECT_NEAR(box.end(page.map).x, 6 * 120 - 144, 1);
}

TEST(TextSelection, endsWithAShorterPage) {
  const Page page("abc\r\ndef\r\nghi");
  const Page shorter("ab");
  TextSelection selection;
  selection.takePage(page.map);
  EXPECT_EQ(copied(shorter.map, selection), "ab");
  selection.move(shorter.map, SelectionMove::left);
  EXPECT_EQ(copied(shorter.map, selection), "a");
  TextSelection box;
  box.start(page.map, Kind::rectangle, at(0, 1));
  box.extend(page.map, at(2, 2));
  EXPECT_EQ(copied(shorter.map, box), "ab");
}

// Words of other widths start at their places, and texts with places of their own in their columns.
TEST(CopiedText, keepsColumnsOfOtherFonts) {
  const std::pair<const char*, const char*> rows[] = {
      {"ab  cd\r\n<b>ab<b/>  cd", "ab  cd\nab  cd"},
      {"<text left=10 top=0 tc=a/><text left=50 top=0 tc=b/>\r\n"
       "<text left=10 top=10 tc=ccc/><text left=50 top=10 tc=d/>",
       "a                  b\nccc                d"},
      {"<text left=10 top=0 tc=abcdefghij/><text left=12 top=0 tc=b/>", "abcdefghij b"}};
  for (const auto& [bytes, expected] : rows) {
    const Page page(bytes);
    TextSelection selection;
    selection.takePage(page.map);
    EXPECT_EQ(copied(page.map, selection), expected) << bytes;
  }
}

// A letter of a proportional font, and its width.
TextLine proportional(const std::u32string& text, double x) {
  TextLine line{text, {TextStretch{.first = 0, .x = x, .height = 200, .edges = {0}}}};
  auto& edges = line.stretches.front().edges;
  for (const char32_t c : text)
    edges.push_back(edges.back() + (c == U'i' ? 50 : c == U' ' ? 60 : c == U'm' ? 180 : 100));
  return line;
}

TEST(CopiedText, putsProportionalWordsNearTheirPlaces) {
  const std::pair<std::u32string, std::u32string> rows[] = {
      {U"ab mmmm ab mm ab", U"ab mmmm ab mm ab"},
      {U"iiii            a", U"iiii     a"},
      {U"mmmm  a", U"mmmm    a"},
      {U"abcd     a", U"abcd   a"}};
  for (const auto& [text, expected] : rows) {
    TextGrid grid;
    const SelectedLine first{proportional(U"abcdabcd", 0), {{0, 8}}};
    const SelectedLine line{proportional(text, 0), {{0, text.size()}}};
    grid.measure(first);
    grid.measure(line);
    grid.finishMeasuring();
    EXPECT_EQ(grid.place(line), expected);
  }
}

// Rows and their cells, each of one "|" or more.
TEST(CopiedText, findsCells) {
  using Lines = std::vector<std::u32string>;
  const std::pair<Lines, const char*> rows[] = {
      {{U"Apple pie    12.00", U"Tea        1234.50"}, "Apple pie\t12.00\nTea\t1234.50\n"},
      {{U"1 22 x", U"3 44 y"}, "1\t22 x\n3\t44 y\n"},
      {{U"a 1", U"b 2"}, "a 1\nb 2\n"},
      {{U"1 228 355,85 5", U"       45,10 6", U"    7 000,00 7"},
       "1 228 355,85\t5\n45,10\t6\n7 000,00\t7\n"},
      {{U" 1 100", U"22 20 "}, "1\t100\n22\t20\n"},
      {{U"1 1000", U"2 2000"}, "1\t1000\n2\t2000\n"},
      {{U"1 01/02/2024", U"2 03.04.2024"}, "1\t01/02/2024\n2\t03.04.2024\n"},
      {{U"1  ", U"2 (3,5)"}, "1\t\n2\t(3,5)\n"},
      {{U"+--+---+", U"|a |b c|", U"|--+---|", U"|dd| e |"}, "a\tb c\ndd\te\n"},
      {{U"x│1", U"y│2", U"─┴─"}, "x\t1\ny\t2\n"},
      {{U"a|b", U"abc"}, "a|b\nabc\n"},
      {{U"a  b", U"long text", U"c  d"}, "a  b\nlong text\nc  d\n"},
      {{U"==="}, ""}};
  for (const auto& [lines, expected] : rows) EXPECT_EQ(tabSeparated(cellsOf(lines)), expected);
  EXPECT_EQ(htmlTable({{U"a<b", U"&\""}, {U"é>", U""}}),
            "<meta charset=\"utf-8\"><table><tr><td>a&lt;b</td><td>&amp;\"</td></tr>\n"
            "<tr><td>é&gt;</td><td></td></tr>\n</table>");
}

}  // namespace
}  // namespace qor::test
