// The rules of edits. In the tables "^" stands for the caret, brackets hold what is selected, and
// "_" is an empty text. The decimal separator is a comma.
#include "window_model/edit_rules.h"

#include <cmath>

#include "support/test.h"

namespace qor::test {
namespace {

// The cells of a table, whose rows are divided by "|".
std::vector<std::vector<std::string>> tableOf(const std::string& text) {
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : linesOf(text, '|')) {
    rows.push_back(wordsOf(line));
    for (std::string& cell : rows.back())
      if (cell == "_") cell.clear();
  }
  return rows;
}

// An edit with its caret or selection.
struct Edit {
  explicit Edit(std::string_view drawn) {
    for (char c : drawn) {
      const int at = static_cast<int>(text.size());
      if (c == '[') edited.selectionStart = at;
      if (c == ']') edited.selectionLength = at - edited.selectionStart;
      if (c == ']' || c == '^') edited.caret = at;
      if (c != '[' && c != ']' && c != '^') text += c;
    }
    edited.text = text;
  }

  std::string text;
  EditedText edited;
};

const std::map<std::string, EditRule> kRules = {
    {"copies", copiesRule()},      {"margin", marginRule()},        {"pages", pagesRule()},
    {"size", pageSizeRule(',')},   {"height", fontHeightRule(',')}, {"width", fontWidthRule(',')},
    {"space", fontSpaceRule(',')}, {"point", pageSizeRule('.')}};

TEST(EditRules, keysGoInWhereTheyMay) {
  // Edits, and the characters that they take of all that can be typed, as they go in.
  const std::pair<const char*, const char*> rules[] = {
      {"margin", "^ 019|12^ 019|123^ _|^123 _|12[3] 019|12[34] 019|1234^ _"},
      {"pages",
       "^ 019-,|12345^ 019-,|1,^ 19|1-^ 19|1,^2 19|1^,2 019-,|^, 019-,|1,[2-] 19|"
       "1,2[-3] 019-,|[1,] 019-,"},
      {"size",
       "^ 19|1^ 019,,|^1 019,,|0^ 019,,|123^ ,,|^123 _|1^23 _|12^3 ,,|12,^ 019|12^, 019|"
       "12,5^ _|12^,5 019|123^,5 _|12,[5] 019|12[,5] 019,,|1[2,]5 019,,|1[2,3] 019,,|"
       "123[,]5 ,,|[1]2,5 019|[1]2 019|[12] 019|1[2]3,4 019|[12,]5 019"},
      {"point", "^ 19|1^ 019..|1.^ 019"},
      {"space",
       "^ 19-|-^ 019,,|^-1 _|^1 019-,,|1^ 019,,|-123^ ,,|^123 -|-^12,5 019|[-1]2 019-|"
       "[-]123,4 -|-12,5^ _"}};
  for (const auto& [name, table] : rules)
    for (const auto& row : tableOf(table)) {
      const Edit edit(row[0]);
      std::string taken;
      for (char key : {'0', '1', '9', '/', ':', 'e', ' ', '+', '-', ',', '.', '?', '\xB2'})
        if (const auto entering = kRules.at(name).typed(edit.edited, key)) taken += *entering;
      EXPECT_EQ(taken, row[1]) << name << " " << row[0];
      for (char key : {'\b', '\t', '\r', '\x7F'})
        EXPECT_EQ(kRules.at(name).typed(edit.edited, key), key);
    }
}

TEST(EditRules, textsAreCorrectedAndHaveValues) {
  const std::pair<const char*, const char*> rules[] = {
      {"margin", "_ _ 0|0 0 0|05 5 5|00 0 0|50 50 50|012 012 12|999 999 999"},
      {"copies", "_ _ 1|0 1 1|05 5 5|00 1 1|10 10 10|000 000 1|12 12 12"},
      {"height",
       "_ _ 10|0 1 1|, _ 10|,5 5 5|,0 1 1|0,5 0,5 0.5|1234 123 123|123,4 123,4 123.4|8, 8, 8"},
      {"width", "_ _ 0|0 0 0|,5 5 5|1234 123 123|12,5 12,5 12.5"},
      {"space",
       "_ _ 0|0 0 0|0,0 0,0 0|0, 0, 0|- - 0|-0 -0 0|05 5 5|007,5 7,5 7.5|-05 -5 -5|"
       "-0,5 -0,5 -0.5|00 0 0|10,5 10,5 10.5"},
      {"size", "_ _ 0|0 0 0|00 _ 0|007 7 7|05 05 5|210,5 210,5 210.5|,5 ,5 0.5"},
      {"pages", "_ _ 0|01-,3 01-,3 0"}};
  for (const auto& [name, table] : rules)
    for (const auto& row : tableOf(table)) {
      const CheckedText checked = kRules.at(name).changed(row[0]);
      EXPECT_EQ(checked.text, row[1]) << name << " " << row[0];
      EXPECT_EQ(checked.value, std::stod(row[2])) << name << " " << row[0];
      EXPECT_FALSE(std::signbit(checked.value) && checked.value == 0.0) << row[0];
    }
}

TEST(EditRules, pastedTextsGoInAsAWholeOrNotAtAll) {
  // The rule, the edit, what is pasted and what goes in.
  const char* const table =
      "copies ^ 12 12|copies 1^ 23 23|copies 1^ 234 _|copies 1[23] 45 45|margin ^ 1.5 _|"
      "margin ^ -1 _|margin 5^ _ _|pages 1^ ,,2- ,,2-|pages 1^ 2;3 _|size ^ 0.5 0,5|"
      "size ^ 12,5 12,5|point ^ 12,5 12.5|size ^ 12,55 _|size ^ 1234 _|size ^ .5 _|"
      "size ^ 1.2,3 _|size 1^ .5 ,5|size 1^,5 .5 _|size [12,5] 0 0|size ^ 5. 5,|size ^ -5 _|"
      "space ^ -5.5 -5,5|space ^1 - -|space 1^ -5 _|space ^ -,5 _|space ^ - _";
  for (const auto& row : tableOf(table)) {
    const Edit edit(row[1]);
    const auto entering = pastedText(kRules.at(row[0]), edit.edited, " " + row[2] + "\n");
    EXPECT_EQ(entering.value_or(""), row[3]) << row[0] << row[1] << row[2];
  }
}

TEST(EditRules, arrowKeysStepWithinLimits) {
  // The rule, the text, the steps and the text behind them.
  const char* const table =
      "copies _ 1 2|copies 1 -1 1|copies 999 1 1000|margin _ -1 0|margin 999 1 999|margin 9 3 12|"
      "height _ 1 11|height 1,5 -1 1|height 9,5 -2 7,5|height 999 1 999,9|space 0,2 1 0,3|"
      "space _ -1 -0,1|space -999,9 -1 -999,9|size 0,5 -1 0|point 0.5 1 1.5|width 1 -2 0";
  for (const auto& row : tableOf(table))
    EXPECT_EQ(steppedText(kRules.at(row[0]), row[1], std::stoi(row[2])), row[3]);
}

}  // namespace
}  // namespace qor::test
