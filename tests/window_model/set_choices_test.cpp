// What the lists of the settings dialog offer. Decimal marks are points where no locale is told.
#include "window_model/set_choices.h"

#include <gtest/gtest.h>

#include "language/language.h"
#include "support/program.h"
#include "support/variable.h"

namespace qor::test {
namespace {

TEST(SetChoices, offerCharacterSets) {
  std::string charsets;
  for (const auto& [text, charset] : charsetEntries()) {
    EXPECT_EQ(std::stoi(std::string(text)), charset);
    EXPECT_EQ(charsetEntries()[static_cast<std::size_t>(entryOfCharset(charset))].text, text);
    charsets += std::to_string(charset) + " ";
  }
  EXPECT_EQ(charsets, "0 1 2 77 128 129 130 134 136 161 162 163 177 178 186 204 222 238 255 ");
  for (const int charset : {3, 76, 137, 254})
    EXPECT_EQ(entryOfCharset(static_cast<std::uint8_t>(charset)), -1) << charset;
}

TEST(SetChoices, offerCodePages) {
  int place = 0;
  for (const int codePage : {437, 850, 857, 866, 1251, 1252, 1254}) {
    EXPECT_EQ(entryOfCodePage(codePage), place);
    EXPECT_EQ(codePageOfEntry(place), codePage);
    for (const char* language : {"en", "ru", "tr"}) {
      const auto& texts = languageOf(language).settings.codePages;
      EXPECT_EQ(std::stoi(std::string(texts[static_cast<std::size_t>(place)])), codePage);
    }
    ++place;
  }
  for (const int codePage : {-1, 0, 436, 855, 1255, 28591}) EXPECT_EQ(entryOfCodePage(codePage), 5);
  for (const int entry : {-1, 7, 8}) EXPECT_EQ(codePageOfEntry(entry), 1252) << entry;
}

TEST(SetChoices, offerColorByBothItsNumbers) {
  for (const auto& [mode, choice] : {std::pair{-1, -1}, {0, 0}, {1, 1}, {2, 3}, {3, 3}, {4, -1}})
    EXPECT_EQ(colorChoice(mode), choice) << mode;
}

TEST(SetChoices, takeItemsApart) {
  const std::tuple<const char*, int, const char*> rows[] = {
      {"9|A4   (210 x 297 mm)", 9, "A4   (210 x 297 mm)"},
      {"317|x|5", 317, "x|5"},
      {"7|", 7, ""},
      {"|A4", 0, "A4"},
      {"", 0, ""}};
  for (const auto& [item, number, name] : rows) {
    EXPECT_EQ(numberOfItem(item), number) << item;
    EXPECT_EQ(nameOfItem(item), name) << item;
  }
}

// Such as "210 297" for a sheet that stands; nothing where the item tells none.
std::string sidesText(const char* item, std::int32_t orientation = 1) {
  const auto sides = sidesOfItem(item, orientation);
  return sides ? sides->width + " " + sides->height : "";
}

TEST(SetChoices, tellSidesAndLimitsOfAPaper) {
  const Variable locale("LC_ALL", "C");
  const std::pair<const char*, const char*> rows[] = {
      {"300|  (7 x 8 mm)   (10 x 20 mm)", "10 20"},
      {"300|5 x 6 mm)   (10.25 x 20 mm)", "10.25 20"},
      {"300|odd   (10 x 20 mm) x 3 mm)", "10 20"},
      {"300|10 x 20 mm)", ""},
      {"300|odd (10 x 20 mm)", ""},
      {"300|odd   (10 x 20)", ""},
      {"300|odd   (10x20 mm)", ""},
      {"300|odd   (5 mm) x 20", ""},
      {"", ""}};
  for (const auto& [item, sides] : rows) EXPECT_EQ(sidesText(item), sides) << item;
  for (const auto& [orientation, sides] :
       {std::pair{0, "279.4 215.9"}, {1, "215.9 279.4"}, {2, "279.4 215.9"}, {3, "279.4 215.9"}})
    EXPECT_EQ(sidesText("1|Letter   (215.9 x 279.4 mm)", orientation), sides) << orientation;
  EXPECT_EQ(limitsText(762, 4318), "min = 76.2 mm, max = 431.8 mm");
}

TEST(SetChoices, haveTheDecimalMarkOfTheLocale) {
  const TemporaryDirectory place;
  if (run({"localedef", "-i", "ru_RU", "-f", "UTF-8", place.path("ru_RU.utf8")}).exitCode != 0)
    GTEST_SKIP() << "no source of a locale with a decimal comma";
  const Variable variables[] = {{"LOCPATH", place.path().c_str()}, {"LC_ALL", "ru_RU.utf8"}};
  EXPECT_EQ(sidesText("1|8.5 x 11.0   (215.9 x 279.4 mm)"), "215,9 279,4");
  EXPECT_EQ(sidesText("1|Letter   (215,9 x 279,4 mm)", 2), "279,4 215,9");
  EXPECT_EQ(limitsText(762, 4318), "min = 76,2 mm, max = 431,8 mm");
}

}  // namespace
}  // namespace qor::test
