// Languages: whole rows, their order, and which of them a code page selects.
#include "language/language.h"

#include <bit>

#include "support/test.h"

namespace qor::test {
namespace {

// A structure of nothing but texts, as a list of them.
template <class Texts>
auto textsIn(const Texts& texts) {
  return std::bit_cast<std::array<std::string_view, sizeof texts / sizeof(std::string_view)>>(
      texts);
}

template <class List>
auto emptyOnes(const List& texts) {
  return std::count(texts.begin(), texts.end(), std::string_view());
}

TEST(Languages, leaveNoTextEmpty) {
  for (const Language* language : languages()) {
    SCOPED_TRACE(language->id);
    EXPECT_FALSE(language->name.empty());
    EXPECT_EQ(emptyOnes(textsIn(language->texts)), 0);
    EXPECT_EQ(emptyOnes(language->errors) + emptyOnes(language->dosErrors), 0);
    PreviewTexts preview = language->preview;
    preview.outsideStart = "in Russian alone";
    EXPECT_EQ(emptyOnes(textsIn(preview)), 0);
    EXPECT_EQ(emptyOnes(textsIn(language->settings)) + emptyOnes(textsIn(language->exports)), 0);
    const auto& [version, about, heading, options] = language->help;
    EXPECT_EQ(emptyOnes(std::array{version, about, heading}) + emptyOnes(options), 0);
    EXPECT_GT(options.size(), 10U);
  }
}

// Languages as the current one names them, and its id.
std::string namesOf(std::initializer_list<const char*> ids) {
  std::string names;
  for (const char* id : ids) names.append(nameOf(languageOf(id))).append(" ");
  return names.append(currentLanguage().id);
}

TEST(Languages, areSelectedByCodePage) {
  const OptionsGuard guard;
  const std::tuple<int, std::array<int, 3>, const char*, const char*> rows[] = {
      {1251, {204, 1251, 866}, "Русский Английский Турецкий ru", "  Ошибка! Ф"},
      {1254, {162, 1254, 857}, "Rusça İngilizce Türkçe tr", "  Hata! Dosya "},
      {1250, {0, 1252, 850}, "Russian English Turkish en", "  Error! Can't"},
      {866, {0, 1252, 850}, "Russian English Turkish en", "  Oшибка! Ф"},
      {857, {0, 1252, 850}, "Russian English Turkish en", "  Hata! Dosya "},
      {850, {0, 1252, 850}, "Russian English Turkish en", "  Error! Can't"},
      {1252, {0, 1252, 850}, "Russian English Turkish en", "  Error! Can't"}};
  for (const auto& [codePage, numbers, names, error] : rows) {
    SelectErrorTexts(codePage);
    SelectInterfaceTexts(codePage);
    EXPECT_EQ((std::array{AppOptions.FontCharset, GetAnsiCodePage(), AppOptions.DocCodePage}),
              numbers);
    EXPECT_EQ(namesOf({"ru", "en", "tr"}), names);
    EXPECT_TRUE(errorTexts().front().starts_with(error)) << codePage;
  }
  SelectErrorTexts(857);
  EXPECT_TRUE(errorTexts().back().ends_with(". ")) << "the row of the DOS code page";
}

TEST(Languages, shareCodePages) {
  const OptionsGuard guard;
  Language added = languageOf("en");
  added.id = "aa";
  added.name = "Afar";
  added.leadsCodePages = false;
  added.names = {};
  added.errors.fill("Error");
  const LanguageEntry entry(added);
  SelectInterfaceTexts(1252);
  EXPECT_EQ(namesOf({"aa", "tr"}), "Afar Turkish en") << "English leads the code page";
  selectLanguage(added);
  EXPECT_EQ(namesOf({"aa", "tr"}), "Afar Türkçe aa");
  EXPECT_EQ(errorTexts().front(), "Error");
  std::string order;
  for (const Language* language : languages())
    if (language->leadsCodePages || language == &added) order.append(language->id).append(" ");
  EXPECT_EQ(order, "ru aa en tr ");
  selectLanguage(languageOf("none"));
  EXPECT_EQ(errorTexts(), languageOf("en").errors);
  EXPECT_EQ(currentLanguage().id, "en");
}

}  // namespace
}  // namespace qor::test
