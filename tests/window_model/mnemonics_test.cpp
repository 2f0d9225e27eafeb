// Letters of captions. In the table captions are divided by "|".
#include "window_model/mnemonics.h"

#include "support/test.h"

namespace qor::test {
namespace {

TEST(Mnemonics, givesEachCaptionALetterThatIsNotTakenElsewhere) {
  // Captions, those that are seen beside them, and the letters.
  // First letters of words go before others, and "A" gives way to what would have none; a "&" that
  // is written twice marks nothing.
  std::vector<std::array<const char*, 3>> rows = {
      {"*.vset", "", "*.&vset"},    {"A|A|a", "", "&A|A|a"},     {"R&D|D&", "", "&R&&D|&D&&"},
      {"&Copies", "", "&&&Copies"}, {"ı|İ|I|i", "", "&ı|İ|I|i"}, {"Все|в", "", "В&се|&в"},
      {"Ё|ё|Е", "", "&Ё|ё|&Е"},     {"÷z", "", "÷&z"},           {"№ Z", "", "№ &Z"},
      {"i|ı", "&İzmir", "i|ı"}};
  rows.insert(rows.end(), {{"Copies|Collate all", "", "&Copies|Collate &all"},
                           {"Ab|A|B|Ba|C", "", "A&b|&A|B|Ba|&C"},
                           {"ısı|İz|i", "", "ı&sı|İ&z|&i"},
                           {"C|Co", "&Copies|A&o", "C|Co"},
                           {"Left, [mm]", "&Lamp", "Left, [&mm]"},
                           {"d|c", "R&&D &Copies", "&d|c"}});
  for (const auto& [captions, seen, marked] : rows) {
    const std::vector<std::string> texts = linesOf(captions, '|');
    EXPECT_EQ(withMnemonics({texts.begin(), texts.end()}, linesOf(seen, '|')),
              linesOf(marked, '|'));
  }
}

}  // namespace
}  // namespace qor::test
