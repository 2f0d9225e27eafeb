// Letters of captions. In the tables captions are divided by "|".
#include "window_model/mnemonics.h"

#include <gtest/gtest.h>

#include "support/rows.h"

namespace qor::test {
namespace {

std::string markedText(const std::string& captions, const std::string& seen = "") {
  const std::vector<std::string> texts = linesOf(captions, '|');
  std::string result;
  for (const std::string& text : withMnemonics({texts.begin(), texts.end()}, linesOf(seen, '|')))
    result += (result.empty() ? "" : "|") + text;
  return result;
}

TEST(Mnemonics, givesEachCaptionALetterOfItsOwn) {
  const std::pair<const char*, const char*> rows[] = {
      {"  Open", "  &Open"},
      {"*.vset", "*.&vset"},
      {"1 2", "1 2"},
      {"Copies|Collate", "&Copies|C&ollate"},
      {"Copies|Collate all", "&Copies|Collate &all"},  // first letters of words go before others
      {"Ab|A", "A&b|&A"},                              // gives way
      {"Ab|A|B|Ba|C", "A&b|&A|B|Ba|&C"},
      {"A|A|a", "&A|A|a"},
      {"R&D|D&", "&R&&D|&D&&"},
      {"&Copies", "&&&Copies"},
      {"ı|İ|I|i", "&ı|İ|I|i"},
      {"ısı|İz|i", "ı&sı|İ&z|&i"},
      {"Все|в", "В&се|&в"},
      {"Ё|ё|Е", "&Ё|ё|&Е"},
      {"÷z", "÷&z"},
      {"№ Z", "№ &Z"}};
  for (const auto& [captions, marked] : rows) EXPECT_EQ(markedText(captions), marked) << captions;
}

TEST(Mnemonics, leavesAloneWhatIsTakenElsewhere) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"Copies", "&Copies", "C&opies"}, {"C", "&c", "C"},
      {"C|Co", "&Copies|A&o", "C|Co"},  {"Left, [mm]", "&Lamp", "Left, [&mm]"},
      {"d|c", "R&&D &Copies", "&d|c"},  // a "&" that is written twice marks nothing
      {"Copies", "Copies&", "&Copies"}, {"i|ı", "&İzmir", "i|ı"}};
  for (const auto& [captions, seen, marked] : rows)
    EXPECT_EQ(markedText(captions, seen), marked) << captions << " beside " << seen;
}

}  // namespace
}  // namespace qor::test
