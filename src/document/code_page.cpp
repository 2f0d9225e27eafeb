// Built-in code pages and those from files.
#include "document/code_page.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/text.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::size_t kMaxFileSize = 4096;

[[noreturn]] void fail(int number, const std::string& fileName, const std::string& reason) {
  LastError.set(number, fileName);
  showWarning(reason);
  throw NumberedError(number, fileName);
}

std::string fileOf(int codePage) {
  return "cp" + std::to_string(codePage) + ".ini";
}

std::string readCodePageFile(const std::string& name) {
  std::optional<InputFile> file;
  try {
    file.emplace(name);
  } catch (const FileError& error) {
    fail(kErrorOpenCodePage, name, error.what());
  }
  try {
    std::string text(kMaxFileSize, '\0');
    text.resize(file->readAt(0, text.data(), text.size()));
    return text;
  } catch (const FileError& error) {
    fail(kErrorReadCodePage, name, error.what());
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

// The system's table; bytes without a character are "?", as in the tables above.
void takeSystemTable(int codePage) {
  for (std::size_t i = 0; i < CodePageTable.size(); ++i) {
    const char byte = static_cast<char>(128 + i);
    const std::u32string code = codePointsFromCodePage({&byte, 1}, codePage);
    const bool known = code.size() == 1 && code.front() < 0xFFFD;
    CodePageTable[i] = known ? static_cast<std::uint16_t>(code.front()) : '?';
  }
}

const CodePageEntries* builtInTable(int codePage) {
  static constexpr CodePageEntries kPlainAscii{};
  switch (codePage) {
    case 866: return &kCodePage866;
    case 1251: return &kCodePage1251;
    case 1254: return &kCodePage1254;
    case 857: return &kCodePage857;
    case 437:
    case 850:
    case 1252: return &kPlainAscii;
    default: return nullptr;
  }
}

}  // namespace

bool isKnownCodePage(int codePage) {
  return builtInTable(codePage) != nullptr || fileExists(fileOf(codePage)) ||
         isSingleByteCodePage(codePage);
}

void LoadCodePage(int codePage) {
  if (const CodePageEntries* table = builtInTable(codePage)) {
    CodePageTable = *table;
    return;
  }
  const std::string file = fileOf(codePage);
  if (fileExists(file)) {
    CodePageTable.fill(0);
    readEntries(readCodePageFile(file));
  } else if (isSingleByteCodePage(codePage)) {
    takeSystemTable(codePage);
  } else {
    fail(kErrorOpenCodePage, file,
         AppOptions.FileName + ": code page " + std::to_string(codePage) +
             ": the system has no table of it, and there is no " + AppOptions.WorkDir + file);
  }
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
