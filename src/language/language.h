// The languages of the interface. A language is a row with all its texts in a file of its own in
// rows/, which announces it by a static LanguageEntry: nothing else names it. One language speaks
// at a time, English before any is selected.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "language/alignment_texts.h"
#include "language/export_texts.h"
#include "language/find_texts.h"
#include "language/interface_texts.h"
#include "language/preview_texts.h"
#include "language/settings_texts.h"

namespace qor {

struct LanguageName {
  std::string_view id;
  std::string_view name;
};

struct Language {
  std::string_view id;    // such as "en"
  std::string_view name;  // in the language itself
  int ansiCodePage;
  int dosCodePage;
  // Of several languages with the same code page, its number selects the one that leads it.
  bool leadsCodePages = false;
  int fontCharset;                      // Windows number
  std::span<const LanguageName> names;  // of other languages, as this one tells them
  InterfaceTexts texts;
  HelpTexts help;
  ErrorTexts errors;
  ErrorTexts dosErrors;  // for those who select the DOS code page
  PreviewTexts preview;
  SettingsTexts settings;
  ExportTexts exports;
  AlignmentTexts alignment;
  FindTexts find;
};

// Announces a language for the length of its life.
class LanguageEntry {
 public:
  explicit LanguageEntry(const Language& language);
  ~LanguageEntry();
  LanguageEntry(const LanguageEntry&) = delete;
  LanguageEntry& operator=(const LanguageEntry&) = delete;

 private:
  const Language& language_;
};

// In the order of their ANSI code pages, then of their ids.
const std::vector<const Language*>& languages();

// English for an id that no language has.
const Language& languageOf(std::string_view id);

// Loads the texts of errors, of the language with this ANSI or DOS code page, or English.
void SelectErrorTexts(int codePage);

// Loads the texts of the interface, of the language with this ANSI code page, or English, and sets
// FontCharset, AnsiCodePage and DocCodePage of AppOptions.
void SelectInterfaceTexts(int codePage);

// Does both for one language.
void selectLanguage(const Language& language);

// What the selections loaded.
const Language& currentLanguage();
const InterfaceTexts& interfaceTexts();
const ErrorTexts& errorTexts();
const PreviewTexts& previewTexts();
const SettingsTexts& settingsTexts();
const ExportTexts& exportTexts();
const AlignmentTexts& alignmentTexts();
const FindTexts& findTexts();
int GetAnsiCodePage();

// As the current language names it, or else in that language itself.
std::string_view nameOf(const Language& language);

// The help of the command line, with the program's version and the extensions of exports.
std::string HelpText(std::string_view extensions);

}  // namespace qor
