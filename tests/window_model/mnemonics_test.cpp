// Letters of captions. In the table captions are divided by "|".
#include "window_model/mnemonics.h"

#include <gtest/gtest.h>

#include "support/rows.h"

namespace qor::test {
namespace {

TEST(Mnemonics, givesEachCaptionALetterThatIsNotTakenElsewhere) {
  // Captions, those that are seen beside them, and the letters.
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"*.vset", "", "*.&vset"},
      {"Copies|Collate all", "",
       "&Copies|Collate &all"},               // first letters of words go before others
      {"Ab|A|B|Ba|C", "", "A&b|&A|B|Ba|&C"},  // gives way
      {"A|A|a", "", "&A|A|a"},
      {"R&D|D&", "", "&R&&D|&D&&"},
      {"&Copies", "", "&&&Copies"},
      {"ı|İ|I|i", "", "&ı|İ|I|i"},
      {"ısı|İz|i", "", "ı&sı|İ&z|&i"},
      {"Все|в", "", "В&се|&в"},
      {"Ё|ё|Е", "", "&Ё|ё|&Е"},
      {"÷z", "", "÷&z"},
      {"№ Z", "", "№ &Z"},
      {"C|Co", "&Copies|A&o", "C|Co"},
      {"Left, [mm]", "&Lamp", "Left, [&mm]"},
      {"d|c", "R&&D &Copies", "&d|c"},  // a "&" that is written twice marks nothing
      {"i|ı", "&İzmir", "i|ı"}};
  for (const auto& [captions, seen, marked] : rows) {
    const std::vector<std::string> texts = linesOf(captions, '|');
    EXPECT_EQ(withMnemonics({texts.begin(), texts.end()}, linesOf(seen, '|')),
              linesOf(marked, '|'));
  }
}

}  // namespace
}  // namespace qor::test
