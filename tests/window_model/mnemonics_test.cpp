// Letters of captions. In the tables captions are divided by "|".
#include "window_model/mnemonics.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "language/language.h"
#include "platform/system/text_encoding.h"
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
      {"Copies", "&Copies"},
      {"  Open", "  &Open"},
      {"*.vset", "*.&vset"},
      {"1 2", "1 2"},
      {"Copies|Collate", "&Copies|C&ollate"},
      {"Copies|Collate all", "&Copies|Collate &all"},  // first letters of words go before others
      {"copies|Copies", "&copies|C&opies"},
      {"Ab|A", "A&b|&A"},         // gives way
      {"Ab|Bc|A", "A&b|B&c|&A"},  // and so does the next
      {"Ab|A|B|Ba|C", "A&b|&A|B|Ba|&C"},
      {"A|A|a", "&A|A|a"},
      {"R&D|D&", "&R&&D|&D&&"},
      {"&Copies", "&&&Copies"},
      {"&", "&&"},
      {"ı|İ|I|i", "&ı|İ|I|i"},
      {"ısı|İz|i", "ı&sı|İ&z|&i"},
      {"Все|в", "В&се|&в"},
      {"Ё|ё|Е", "&Ё|ё|&Е"},
      {"Ğa|ğ", "Ğ&a|&ğ"},
      {"Öß|ö", "&Öß|ö"},
      {"÷z", "÷&z"},
      {"№ Z", "№ &Z"}};
  for (const auto& [captions, marked] : rows) EXPECT_EQ(markedText(captions), marked) << captions;
}

TEST(Mnemonics, leavesAloneWhatIsTakenElsewhere) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"Copies", "&Copies", "C&opies"}, {"C", "&c", "C"},
      {"C|Co", "&Copies|A&o", "C|Co"},  {"Left, [mm]", "&Lamp", "Left, [&mm]"},
      {"d|c", "R&&D &Copies", "&d|c"},  // a "&" that is written twice marks nothing
      {"Copies", "Copies&", "&Copies"}, {"i|ı", "&İzmir", "i|ı"},
      {"Все", "&весь", "В&се"}};
  for (const auto& [captions, seen, marked] : rows)
    EXPECT_EQ(markedText(captions, seen), marked) << captions << " beside " << seen;
}

using Texts = std::vector<std::string_view SettingsTexts::*>;
using S = SettingsTexts;

const Texts kAlways = {&S::apply,    &S::print,   &S::cancel,  &S::bringBack, &S::printerTab,
                       &S::printTab, &S::fontTab, &S::pageTab, &S::setsTab};
const Texts kTabs[] = {
    {&S::printerList, &S::defaults},
    {&S::defaults,    &S::pages,      &S::quantityOfCopies, &S::collate,     &S::printOrder,
     &S::quality,     &S::printColor, &S::paperSource,      &S::allPages,    &S::currentPage,
     &S::pageNumbers, &S::copies,     &S::frontToBack,      &S::backToFront, &S::qualityDefault,
     &S::draft,       &S::low,        &S::medium,           &S::high,        &S::colorDefault,
     &S::monochrome,  &S::colored},
    {&S::defaults, &S::fontList, &S::fontHeight, &S::fontWidth, &S::fontSpace, &S::bold,
     &S::underline, &S::italic, &S::strikeOut, &S::fontColor, &S::characterSet},
    {&S::defaults, &S::autoDetect, &S::portrait, &S::landscape, &S::leftMargin, &S::topMargin,
     &S::format, &S::pageWidth, &S::pageHeight, &S::baseCodePage, &S::scaleToPaper},
    {&S::defaults, &S::openFile, &S::saveFile, &S::saveFileAs, &S::deleteSet, &S::nameOfSet,
     &S::namesOfSets, &S::setValues, &S::setValues}};

std::vector<std::string_view> textsOf(const Texts& members, const SettingsTexts& texts) {
  std::vector<std::string_view> result;
  for (const auto member : members) result.push_back(texts.*member);
  return result;
}

// Its letters in lower case, without the Turkish i's.
std::u32string lettersOf(std::string_view text) {
  std::u32string letters;
  for (const char32_t c : codePointsFromUtf8(lowerUtf8(text))) {
    if (c == U'ı' || c == U'İ')
      letters += U'i';
    else if ((c >= U'a' && c <= U'z') || c > 0xE0)
      letters += c;
  }
  return letters;
}

// The caption without its mark is what it was, and the marked letter is nobody else's.
void expectMarked(const std::string& marked, std::string_view caption, std::u32string& used) {
  const auto place = marked.find('&');
  EXPECT_EQ(std::string(marked).replace(std::min(place, marked.size()), 1, ""), caption);
  if (place == std::string::npos) return;
  const char32_t letter = lettersOf(marked.substr(place + 1)).front();
  EXPECT_EQ(used.find(letter), std::u32string::npos) << marked;
  used += letter;
}

TEST(Mnemonics, serveTheDialogInEveryLanguage) {
  // How many captions of each tab can have a letter beside those that are seen with all of them.
  for (const auto& [language, served] :
       rowsOf("en 2 14 11 11 9 |ru 2 19 11 11 9 |tr 2 16 10 11 9 ")) {
    const SettingsTexts& texts = languageOf(language).settings;
    const auto always = textsOf(kAlways, texts);
    const auto fixed = withMnemonics(always);
    std::u32string usedAlways;
    for (std::size_t i = 0; i < always.size(); ++i) expectMarked(fixed[i], always[i], usedAlways);
    EXPECT_EQ(usedAlways.size(), always.size()) << language;
    std::string numbers;
    for (const Texts& tab : kTabs) {
      const auto captions = textsOf(tab, texts);
      const auto marked = withMnemonics(captions, fixed);
      std::u32string used = usedAlways;
      for (std::size_t i = 0; i < captions.size(); ++i) expectMarked(marked[i], captions[i], used);
      numbers += std::to_string(used.size() - always.size()) + " ";
    }
    EXPECT_EQ(numbers, served) << language;
  }
}

}  // namespace
}  // namespace qor::test
