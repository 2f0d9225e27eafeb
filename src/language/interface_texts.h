// The texts of the process as a whole: messages, names of print jobs, errors and the help.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace qor {

struct InterfaceTexts {
  std::string_view ApplicationTitle;  // of every message box
  std::string_view PreviewTitle;
  std::string_view FileNotExists;  // behind a file's name
  std::string_view NoFileSelected;
  std::string_view DocumentJobName;  // print job of many pages
  std::string_view PageJobName;      // print job of one page; its number follows
};

// By error number, from 1.
using ErrorTexts = std::array<std::string_view, 7>;

// The help of the command line, in the order of its lines.
struct HelpTexts {
  std::string_view version;  // the version's number follows
  std::string_view about;
  std::string_view heading;
  std::span<const std::string_view> options;
};

}  // namespace qor
