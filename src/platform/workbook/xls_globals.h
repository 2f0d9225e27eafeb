// What stands before the sheets of an XLS workbook.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qor {

class CellFormats;

// Formats of the file's own stand before those of cells.
inline constexpr std::uint32_t kXlsFirstCellFormat = 15;

enum class XlsPart { workbook, sheet };

std::string xlsBof(XlsPart part);
std::string xlsEnd();

// Everything up to the list of sheets: fonts, number formats, cell formats.
std::string xlsGlobals(const CellFormats& formats);

// The names of sheets and where they start: so many bytes behind `start`.
std::string xlsSheetList(const std::vector<std::uint64_t>& places, std::uint64_t start);

}  // namespace qor
