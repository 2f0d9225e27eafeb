// Set files as lists of lines.
#include "settings/set_lines.h"

#include <algorithm>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/text.h"
#include "platform/system/input_file.h"
#include "platform/system/locale.h"
#include "platform/system/output_file.h"
#include "platform/system/text_encoding.h"
#include "platform/system/text_file.h"
#include "settings/default_set_file.h"

namespace qor {
namespace {

constexpr std::uint64_t kMaxSetFile = 64U << 20;

}  // namespace

bool GetKeyValue(std::string_view line, std::string_view key, std::string& value) {
  const auto place = line.find(key);
  if (place == std::string_view::npos) return false;
  std::string_view rest = line.substr(place + key.size());
  if (const auto equals = rest.find('='); equals != std::string_view::npos) {
    rest.remove_prefix(equals + 1);
  }
  rest = trimmed(rest);
  if (!rest.starts_with('"')) {
    value = upTo(rest, ' ');
    return true;
  }
  rest.remove_prefix(1);
  const auto quote = rest.find('"');
  if (quote == std::string_view::npos) return false;
  value = rest.substr(0, quote);
  return true;
}

std::vector<std::string> loadLines(const std::string& path) {
  const std::string bytes = loadWholeFile(path, kMaxSetFile);
  const auto utf8 = utf8ByMark(bytes);
  return linesOf(utf8 ? fileText(*utf8) : bytes);
}

void saveLines(const std::string& path, const std::vector<std::string>& lines, LinkTarget link) {
  OutputFile file(path, link);
  for (const std::string& line : lines) {
    file.write(line);
    file.write("\r\n");
  }
  file.commit();
}

void saveSetFile(const std::vector<std::string>& lines) {
  const std::string& file = AppOptions.IniFileName;
  saveLines(file, lines, file == defaultSetFile() ? LinkTarget::spared : LinkTarget::written);
}

std::size_t findSetHeader(const std::vector<std::string>& lines, std::string_view name) {
  std::string found;
  const auto header = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
    return line.starts_with('<') && GetKeyValue(line, "SetName", found) && found == name;
  });
  return static_cast<std::size_t>(header - lines.begin());
}

std::string fileText(std::string_view utf8) {
  return codePageFromUtf8(utf8, systemAnsiCodePage(), Substitute::questionMark);
}

std::string utf8OfFileText(std::string_view bytes) {
  return utf8FromCodePage(bytes, systemAnsiCodePage());
}

}  // namespace qor
