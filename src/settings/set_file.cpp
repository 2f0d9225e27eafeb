// Settings sets in their file. The format looks like XML and is none: it is read line by line.
#include <algorithm>

#include "base/app_options.h"
#include "base/errors.h"
#include "document/vset.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"
#include "settings/default_set_file.h"
#include "settings/set_keys.h"
#include "settings/set_lines.h"

namespace qor {
namespace {

constexpr std::string_view kVersionLine = "<ReportSetsIniFile Ver=\"1.0\"/>";
constexpr std::string_view kDefaultSet = "Default";

// A set of this name can be written and listed, but never read.
constexpr std::string_view kUnreadableSet = "0";

// Marks and keys may stand anywhere in their lines.
bool contains(std::string_view line, std::string_view part) {
  return line.find(part) != std::string_view::npos;
}

std::string mark(std::string_view name, std::string_view end) {
  return std::string("<").append(name).append(end);
}

const std::string& lineAt(const VSet::Lines& lines, std::size_t place) {
  if (place < lines.size()) return lines[place];
  throw ListIndexError(AppOptions.IniFileName + ": set \"" + AppOptions.SetName +
                       "\": the file ends inside it");
}

void readKeyLine(VSet& set, const SetSection& section, const std::string& line) {
  std::string value;
  for (const SetKey& key : section.keys) {
    if (!GetKeyValue(line, key.name, value)) continue;
    try {
      key.read(set, value);
    } catch (const ConversionError& error) {
      throw ConversionError(AppOptions.IniFileName + ": set \"" + AppOptions.SetName +
                                "\": " + std::string(key.name) + ": " + error.what(),
                            ErrorKind::badSettings);
    }
    return;
  }
}

}  // namespace

void VSet::readSections(const Lines& lines) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    for (const SetSection& section : setSections()) {
      if (!contains(lines[i], mark(section.name, ">"))) continue;
      const std::string end = mark(section.name, "/>");
      for (++i; !contains(lineAt(lines, i), end); ++i) readKeyLine(*this, section, lines[i]);
    }
  }
}

int VSet::LoadSet(Use use) {
  // The default set is a memory of earlier runs: what this one was told goes before it, and what
  // earlier ones were told is nothing for a report that the user has opened.
  const bool remembered =
      AppOptions.IniFileName.empty() && (AppOptions.CodePageGiven || AppOptions.OpenedByUser);
  if (AppOptions.IniFileName.empty()) AppOptions.IniFileName = defaultSetFile();
  if (AppOptions.SetName.empty()) AppOptions.SetName = kDefaultSet;
  if (fileExists(AppOptions.IniFileName)) {
    const int result = ReloadSet();
    if (remembered) Page.BaseCodePage = AppOptions.DocCodePage;
    return result;
  }
  try {
    SaveSet();
  } catch (const FileError& error) {
    // A directory that can't be written is no reason not to print.
    if (use == Use::print) writeErrorLine(error.what());
  }
  return 1;
}

int VSet::ReloadSet() {
  if (AppOptions.IniFileName.empty() || !fileExists(AppOptions.IniFileName)) return 0;
  Lines lines;
  ExtractSetLines(AppOptions.SetName, lines);
  if (lines.empty()) return -1;
  readSections(lines);
  return 0;
}

int VSet::SaveSet() const {
  if (AppOptions.IniFileName.empty()) return -1;
  Lines others;
  if (fileExists(AppOptions.IniFileName)) {
    others = loadLines(AppOptions.IniFileName);
    RemoveSetLines(AppOptions.SetName, others);
  }
  Lines lines;
  WriteSetLines(lines);
  lines.insert(lines.begin(), std::string(kVersionLine));
  lines.insert(lines.end(), std::make_move_iterator(others.begin()),
               std::make_move_iterator(others.end()));
  saveSetFile(lines);
  return 0;
}

void VSet::WriteSetLines(Lines& lines) const {
  lines.clear();
  lines.push_back("<Set SetName=\"" + fileText(AppOptions.SetName) + "\">");
  for (const SetSection& section : setSections()) {
    lines.push_back("    " + mark(section.name, ">"));
    for (const SetKey& key : section.keys) {
      if (key.write == nullptr) continue;
      lines.push_back("        " + mark(key.label, "= \"") + key.write(*this) + "\"/>");
    }
    lines.push_back("    " + mark(section.name, "/>"));
  }
  lines.push_back("<Set/>");
}

void VSet::ListSetNames(std::vector<std::string>& names) {
  names.clear();
  if (AppOptions.IniFileName.empty() || !fileExists(AppOptions.IniFileName)) return;
  std::string name;
  for (const std::string& line : loadLines(AppOptions.IniFileName)) {
    if (line.starts_with('<') && GetKeyValue(line, "SetName", name)) {
      names.push_back(utf8OfFileText(name));
    }
  }
}

void VSet::ExtractSetLines(std::string_view name, Lines& lines) {
  if (name == kUnreadableSet) return;
  lines.clear();
  const Lines file = loadLines(AppOptions.IniFileName);
  const std::size_t header = findSetHeader(file, fileText(name));
  if (header == file.size()) return;
  for (std::size_t i = header; i == header || !contains(file[i - 1], "<Set/>"); ++i) {
    lines.push_back(lineAt(file, i));
  }
}

void VSet::RemoveSetLines(std::string_view name, Lines& lines) {
  if (contains(lineAt(lines, 0), "Ver")) lines.erase(lines.begin());
  const std::size_t header = findSetHeader(lines, fileText(name));
  if (header == lines.size()) return;
  const auto first = lines.begin() + static_cast<std::ptrdiff_t>(header);
  lines.erase(first, std::find_if(first + 1, lines.end(), [](const std::string& line) {
                return contains(line, "SetName");
              }));
}

}  // namespace qor
