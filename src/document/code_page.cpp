// Built-in code pages and those from files.
#include "document/code_page.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "base/errors.h"
#include "base/text.h"
#include "platform/input_file.h"
#include "platform/messages.h"

namespace qor {
namespace {

constexpr std::size_t kMaxFileSize = 4096;

[[noreturn]] void fail(int number, const std::string& fileName, const FileError& error) {
  LastError.set(number, fileName);
  showWarning(error.what());
  throw number;
}

std::string readCodePageFile(const std::string& name) {
  std::optional<InputFile> file;
  try {
    file.emplace(name);
  } catch (const FileError& error) {
    fail(kErrorOpenCodePage, name, error);
  }
  try {
    std::string text(kMaxFileSize, '\0');
    text.resize(file->readAt(0, text.data(), text.size()));
    return text;
  } catch (const FileError& error) {
    fail(kErrorReadCodePage, name, error);
  }
}

// The value behind the first "-" of a line such as "128-0x0410": hexadecimal if its second
// character is "x", else decimal.
std::uint16_t entryOf(std::string_view line) {
  const auto dash = line.find('-');
  std::string_view value =
      dash == std::string_view::npos ? std::string_view() : line.substr(dash + 1);
  const bool hexadecimal = value.size() > 1 && value[1] == 'x';
  value = hexadecimal ? value.substr(2) : trimmedLeft(value);
  unsigned number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number, hexadecimal ? 16 : 10);
  return static_cast<std::uint16_t>(number);
}

void readEntries(std::string_view text) {
  for (std::uint16_t& entry : CodePageTable) {
    if (text.empty()) return;
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    entry = entryOf(line);
    text.remove_prefix(line.size());
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
  }
}

}  // namespace

void LoadCodePage(int codePage) {
  switch (codePage) {
    case 866: CodePageTable = kCodePage866; return;
    case 1251: CodePageTable = kCodePage1251; return;
    case 1254: CodePageTable = kCodePage1254; return;
    case 857: CodePageTable = kCodePage857; return;
    default: CodePageTable.fill(0);
  }
  if (codePage == 437 || codePage == 850 || codePage == 1252) return;
  readEntries(readCodePageFile("cp" + std::to_string(codePage) + ".ini"));
}

std::string_view CodePageName(int codePage) {
  switch (codePage) {
    case 866: return "cp866";
    case 1251: return "windows-1251";
    case 1252: return "windows-1252";
    case 1254: return "windows-1254";
    default: return "";
  }
}

}  // namespace qor
