// Reading and changing INI files.
#include "window_model/ini_text.h"

#include "base/text.h"
#include "platform/system/text_file.h"

namespace qor {
namespace {

bool isSame(std::string_view left, std::string_view right) {
  return lowerAscii(left) == lowerAscii(right);
}

bool isHead(std::string_view line) {
  return trimmed(line).starts_with('[');
}

}  // namespace

IniText::IniText(std::string_view text)
    : lines_(linesOf(utf8ByMark(text).value_or(std::string(text)))) {
}

std::optional<IniText::Part> IniText::partOf(std::string_view section) const {
  const std::string head = "[" + std::string(section) + "]";
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (!isSame(trimmed(lines_[i]), head)) continue;
    Part part = {i + 1, i + 1};
    for (std::size_t line = i + 1; line < lines_.size() && !isHead(lines_[line]); ++line)
      if (!trimmed(lines_[line]).empty()) part.end = line + 1;
    return part;
  }
  return std::nullopt;
}

std::optional<std::size_t> IniText::lineOf(const Part& part, std::string_view key,
                                           Blanks blanks) const {
  for (std::size_t i = part.start; i < part.end; ++i) {
    const std::string_view line = trimmedLeft(lines_[i]);
    if (line.find('=') == std::string_view::npos) continue;
    const std::string_view found = upTo(line, '=');
    if (isSame(blanks == Blanks::kept ? found : trimmed(found), key)) return i;
  }
  return std::nullopt;
}

std::optional<std::string> IniText::value(std::string_view section, std::string_view key,
                                          Blanks blanks) const {
  const auto part = partOf(section);
  const auto line = part ? lineOf(*part, key, blanks) : std::nullopt;
  if (!line) return std::nullopt;
  const std::string_view text = lines_[*line];
  return std::string(trimmed(text.substr(text.find('=') + 1)));
}

void IniText::set(std::string_view section, std::string_view key, std::string_view value,
                  Blanks blanks) {
  const std::string entry = std::string(key) + "=" + std::string(value);
  auto part = partOf(section);
  if (!part) {
    lines_.push_back("[" + std::string(section) + "]");
    part = Part{lines_.size(), lines_.size()};
  }
  if (const auto line = lineOf(*part, key, blanks)) {
    lines_[*line] = entry;
  } else {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(part->end), entry);
  }
}

std::string IniText::text() const {
  std::string text;
  for (const std::string& line : lines_) text += line + "\r\n";
  return text;
}

}  // namespace qor
