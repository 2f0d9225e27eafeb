// The names that the export dialog proposes for a report's exports. Users and their scripts count
// on them, the odd ones too.
#pragma once

#include <string>
#include <string_view>

namespace qor {

struct ProposedName {
  std::string fileName;
  std::string_view filter;            // of the save dialog: a text and a mask, in turn, between "|"
  std::string_view defaultExtension;  // of the save dialog
};

// For a format's id and the chosen one, from 0, of the types of spreadsheets. The name is the
// report's up to its first point; a report without one gives nothing but the extension.
ProposedName BuildExportFileName(std::string_view report, int format, int sheetType);

// What a name as the user typed it becomes when another type of spreadsheets is chosen: it is cut
// at its first point.
ProposedName nameForSheetType(std::string_view typed, int sheetType);

}  // namespace qor
