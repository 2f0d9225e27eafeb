// What the lists of the settings dialog offer, and the scale that its draft leads to. Decimal marks
// are points where no locale is told.
#include "window_model/set_choices.h"

#include "language/language.h"
#include "support/made_up_printers.h"
#include "support/test.h"
#include "window_model/set_draft.h"

namespace qor::test {
namespace {

TEST(SetChoices, offerCharacterSetsAndCodePages) {
  std::string charsets;
  for (const auto& [text, charset] : charsetEntries()) {
    EXPECT_EQ(std::stoi(std::string(text)), charset);
    EXPECT_EQ(charsetEntries()[static_cast<std::size_t>(entryOfCharset(charset))].text, text);
    charsets += std::to_string(charset) + " ";
  }
  EXPECT_EQ(charsets, "0 1 2 77 128 129 130 134 136 161 162 163 177 178 186 204 222 238 255 ");
  EXPECT_EQ(entryOfCharset(3), -1);
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
  EXPECT_EQ(entryOfCodePage(28591), 5) << "1252 for all others";
}

// Such as "210 297"; nothing where the item tells none.
std::string sidesText(const char* item, std::int32_t orientation = 1) {
  const auto sides = sidesOfItem(item, orientation);
  return sides ? sides->width + " " + sides->height : "";
}

TEST(SetChoices, tellTheSidesOfAPaper) {
  const Variable locale("LC_ALL", "C");
  const std::pair<const char*, const char*> rows[] = {
      {"300|  (7 x 8 mm)   (10.25 x 20 mm)", "10.25 20"},
      {"300|odd   (10 x 20 mm) x 3 mm)", "10 20"},
      {"300|odd (10 x 20 mm)", ""},
      {"300|odd   (10 x 20)", ""},
      {"300|odd   (10x20 mm)", ""},
      {"300|odd   (5 mm) x 20", ""}};
  for (const auto& [item, sides] : rows) EXPECT_EQ(sidesText(item), sides) << item;
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

// The window doesn't show the scale that printing takes from the document.
TEST(SetDraft, scalesForPrintersThatWereChosen) {
  const OptionsGuard guard;
  const MadeUpPrinters printers({}, "");
  SetDraft draft;
  draft.set.DefaultPrinterName = "usual";
  draft.ScalePercent = 77;
  const std::tuple<const char*, bool, std::int32_t, bool> rows[] = {
      {"usual", true, 100, false}, {"other", true, 77, true}, {"other", false, 77, false}};
  for (const auto& [printer, flag, scale, scaleFlag] : rows) {
    draft.ScaleFlag = flag;
    VDoc doc;
    doc.PrintScaleFlag = !scaleFlag;
    applyDraft(draft, printer, doc);
    EXPECT_EQ(doc.PrintScale, scale) << printer;
    EXPECT_EQ(doc.PrintScaleFlag, scaleFlag) << printer << flag;
  }
}

}  // namespace
}  // namespace qor::test
