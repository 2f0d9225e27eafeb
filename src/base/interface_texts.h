// The texts of the process as a whole, in the language that the system's ANSI code page tells.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace qor {

struct InterfaceTexts {
  std::string_view ApplicationTitle;  // of every message box
  std::string_view RussianName;
  std::string_view EnglishName;
  std::string_view TurkishName;
  std::string_view PreviewTitle;
  std::string_view FileNotExists;  // behind a file's name
  std::string_view NoFileSelected;
  std::string_view DocumentJobName;  // print job of many pages
  std::string_view PageJobName;      // print job of one page; its number follows
};

// By error number, from 1.
using ErrorTexts = std::array<std::string_view, 7>;

// Loads the texts of errors.
void SelectErrorTexts(int codePage);

// Loads the texts of the interface and sets FontCharset, AnsiCodePage and DocCodePage of
// AppOptions.
void SelectInterfaceTexts(int codePage);

// What the two selections loaded.
const InterfaceTexts& interfaceTexts();
const ErrorTexts& errorTexts();
int messageCodePage();

int GetAnsiCodePage();

// The help of the command line, with the program's version.
std::string HelpText();

}  // namespace qor
