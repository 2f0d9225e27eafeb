// Proposing names.
#include "window_model/export_names.h"

#include <array>

#include "base/path.h"
#include "base/text.h"
#include "export/export_formats.h"

namespace qor {
namespace {

struct NameRow {
  std::string_view extension;
  std::string_view filter;
  std::string_view defaultExtension;
  bool marksItsOwn = false;  // a report with this extension must not be proposed itself
};

// By their ids. Users know the extension ".pfd" of names that they type without one.
constexpr std::array<NameRow, kExportSheets> kRows = {
    {{".txt", "*.txt|*.txt", ".txt", true},
     {".html", "*.html|*.html|*.htm|*.htm", ".html"},
     {".rtf", "*.rtf|*.rtf", ".rtf"},
     {".doc", "*.doc|*.doc", ".doc", true},
     {".pdf", "*.pdf|*.pdf", ".pfd"},
     {".jpeg", "*.jpeg|*.jpeg", ".jpeg"}}};

constexpr std::array<NameRow, 3> kSheetRows = {{{".xls", "*.xls|*.xls", ".xls"},
                                                {".xlsx", "*.xlsx|*.xlsx", ".xls"},
                                                {".csv", "*.csv|*.csv", ".xls"}}};

const NameRow& sheetRow(int sheetType) {
  const auto place = static_cast<std::size_t>(sheetType);
  return kSheetRows[place < kSheetRows.size() ? place : 0];
}

const NameRow& rowOf(int format, int sheetType) {
  const int id = formatWithId(format).id;
  return id == kExportSheets ? sheetRow(sheetType) : kRows[static_cast<std::size_t>(id)];
}

ProposedName proposed(std::string fileName, const NameRow& row) {
  return {std::move(fileName), row.filter, row.defaultExtension};
}

// Directory and name up to the first point of the name; empty where the name has none.
std::string stemOf(std::string_view report) {
  const std::string_view name = fileNameOf(report);
  const auto point = name.find('.');
  if (point == std::string_view::npos) return {};
  return std::string(directoryOf(report)).append(name.substr(0, point));
}

// Its extension is cut out where it is first met in the name.
std::string pictureBaseOf(std::string_view report) {
  std::string name(fileNameOf(report));
  const std::string_view extension = extensionOf(report);
  name.erase(name.find(extension), extension.size());
  return std::string(directoryOf(report)) + name;
}

bool wouldNameItself(std::string_view report, const NameRow& row) {
  const std::string_view name = fileNameOf(report);
  const std::string_view behind = name.substr(upTo(name, '.').size());
  return row.marksItsOwn && lowerAscii(behind) == row.extension;
}

}  // namespace

ProposedName BuildExportFileName(std::string_view report, int format, int sheetType) {
  const NameRow& row = rowOf(format, sheetType);
  std::string name = format == kExportPictures ? pictureBaseOf(report) : stemOf(report);
  if (wouldNameItself(report, row)) name += "(conv)";
  return proposed(name.append(row.extension), row);
}

ProposedName nameForSheetType(std::string_view typed, int sheetType) {
  const NameRow& row = sheetRow(sheetType);
  std::string name(directoryOf(typed));
  name.append(upTo(fileNameOf(typed), '.'));
  return proposed(std::string(trimmed(name)).append(row.extension), row);
}

}  // namespace qor
