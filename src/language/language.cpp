// The languages that there are, and the one that speaks.
#include "language/language.h"

#include <algorithm>
#include <tuple>

#include "base/app_options.h"
#include "base/text.h"

namespace qor {
namespace {

using Rows = std::vector<const Language*>;

// Entries come from files whose order nobody knows, so the list is there with the first of them.
Rows& rows() {
  static Rows list;
  return list;
}

bool isBefore(const Language* a, const Language* b) {
  return std::tie(a->ansiCodePage, a->id) < std::tie(b->ansiCodePage, b->id);
}

const Language* languageWithId(std::string_view id) {
  const auto hasId = [id](const Language* row) { return row->id == id; };
  const auto found = std::find_if(rows().begin(), rows().end(), hasId);
  return found == rows().end() ? nullptr : *found;
}

const Language& english() {
  const Language* row = languageWithId("en");
  return row == nullptr ? *rows().front() : *row;
}

// Null where no language has the code page.
const Language* languageWith(int Language::*codePage, int number) {
  const Language* found = nullptr;
  for (const Language* row : rows()) {
    if (row->*codePage == number && (found == nullptr || row->leadsCodePages)) found = row;
  }
  return found;
}

const Language* current = nullptr;
const ErrorTexts* currentErrors = nullptr;

void selectInterface(const Language& language) {
  current = &language;
  AppOptions.FontCharset = language.fontCharset;
  AppOptions.AnsiCodePage = language.ansiCodePage;
  AppOptions.DocCodePage = language.dosCodePage;
}

}  // namespace

LanguageEntry::LanguageEntry(const Language& language) : language_(language) {
  rows().insert(std::upper_bound(rows().begin(), rows().end(), &language, isBefore), &language);
}

LanguageEntry::~LanguageEntry() {
  std::erase(rows(), &language_);
}

const Rows& languages() {
  return rows();
}

const Language& languageOf(std::string_view id) {
  const Language* row = languageWithId(id);
  return row == nullptr ? english() : *row;
}

void SelectErrorTexts(int codePage) {
  if (const Language* ansi = languageWith(&Language::ansiCodePage, codePage)) {
    currentErrors = &ansi->errors;
  } else {
    const Language* dos = languageWith(&Language::dosCodePage, codePage);
    currentErrors = dos != nullptr ? &dos->dosErrors : &english().errors;
  }
}

void SelectInterfaceTexts(int codePage) {
  const Language* found = languageWith(&Language::ansiCodePage, codePage);
  selectInterface(found != nullptr ? *found : english());
}

void selectLanguage(const Language& language) {
  currentErrors = &language.errors;
  selectInterface(language);
}

const Language& currentLanguage() {
  return current != nullptr ? *current : english();
}
const InterfaceTexts& interfaceTexts() {
  return currentLanguage().texts;
}
const ErrorTexts& errorTexts() {
  return currentErrors != nullptr ? *currentErrors : english().errors;
}
const PreviewTexts& previewTexts() {
  return currentLanguage().preview;
}
const SettingsTexts& settingsTexts() {
  return currentLanguage().settings;
}
const ExportTexts& exportTexts() {
  return currentLanguage().exports;
}

const AlignmentTexts& alignmentTexts() {
  return currentLanguage().alignment;
}
const FindTexts& findTexts() {
  return currentLanguage().find;
}
int GetAnsiCodePage() {
  return AppOptions.AnsiCodePage;
}

std::string_view nameOf(const Language& language) {
  for (const LanguageName& row : currentLanguage().names) {
    if (row.id == language.id) return row.name;
  }
  return language.name;
}

std::string HelpText(std::string_view extensions) {
  const HelpTexts& help = currentLanguage().help;
  std::string text = std::string(help.version) + AppOptions.ProgramVersion + "\n";
  text.append(help.about).append("\n").append(help.heading);
  for (const std::string_view option : help.options) {
    const std::string_view start = upTo(option, '%');
    text.append("\n\t").append(start);
    if (start.size() < option.size())
      text.append(extensions).append(option.substr(start.size() + 1));
  }
  return text;
}

}  // namespace qor
