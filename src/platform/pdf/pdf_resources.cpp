// Reading the resource file.
#include "platform/pdf/pdf_resources.h"

#include <algorithm>

#include "base/errors.h"
#include "base/text.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

constexpr std::uint64_t kMaxFile = 1 << 20;

std::string_view takeLine(std::string_view& text) {
  const std::string_view line = upTo(text, '\n');
  text.remove_prefix(std::min(text.size(), line.size() + 1));
  return trimmed(upTo(line, '%'));
}

}  // namespace

PdfResources::PdfResources(const std::string& path) {
  const auto file = readWholeFile(path, kMaxFile);
  if (!file) throw FileError(path + ": can't be read");
  std::string section;
  for (std::string_view rest = *file; !rest.empty();) {
    const std::string_view line = takeLine(rest);
    const std::string_view name = trimmed(upTo(line, '='));
    if (line == ".") {
      section.clear();
    } else if (name.size() == line.size()) {
      section = line;
    } else {
      sections_[section][lowerAscii(name)] = trimmed(line.substr(line.find('=') + 1));
    }
  }
}

const std::string* PdfResources::find(const std::string& section, const std::string& name) const {
  const auto found = sections_.find(section);
  if (found == sections_.end()) return nullptr;
  const auto entry = found->second.find(lowerAscii(name));
  return entry == found->second.end() ? nullptr : &entry->second;
}

std::string PdfResources::familyOf(const std::string& face) const {
  const std::string* family = find("FontOutline", face);
  return family == nullptr ? face : *family;
}

int PdfResources::codePageOf(const std::string& encoding) const {
  const std::string* entry = find("Encoding", encoding);
  const std::string_view name = entry == nullptr ? std::string_view(encoding) : *entry;
  return parseInteger(name.starts_with("cp") ? name.substr(2) : name).value_or(0);
}

}  // namespace qor
