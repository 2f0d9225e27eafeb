// Cells as XML: the part of a workbook that is large.
#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/units.h"
#include "platform/workbook/sheet.h"
#include "platform/workbook/xlsx_parts.h"

namespace qor {
namespace {

template <class Number>
void appendDigits(Number number, std::string& xml) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
  xml.append(digits.begin(), end);
}

// "A" to "XFD".
void appendColumnName(std::uint32_t column, std::string& xml) {
  std::array<char, 3> letters;
  std::size_t count = 0;
  for (std::uint32_t rest = column + 1; rest > 0; rest = (rest - 1) / 26)
    letters[count++] = static_cast<char>('A' + (rest - 1) % 26);
  while (count > 0) xml += letters[--count];
}

void appendTextCell(std::string_view text, std::string& xml) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n'; };
  const bool keepsBlanks = !text.empty() && (isBlank(text.front()) || isBlank(text.back()));
  xml +=
      keepsBlanks ? R"( t="inlineStr"><is><t xml:space="preserve">)" : R"( t="inlineStr"><is><t>)";
  appendXlsxText(text, xml);
  xml += "</t></is></c>";
}

void appendNumberCell(double number, std::string& xml) {
  xml += "><v>";
  appendDigits(number, xml);
  xml += "</v></c>";
}

void appendPlace(const Cell& cell, std::string& xml) {
  xml += " r=\"";
  appendColumnName(cell.column, xml);
  appendDigits(cell.row + 1, xml);
  xml += '"';
}

// Its place is told even where it follows the one before it: some readers want it.
void appendCell(const Sheet& sheet, const Cell& cell, std::string& xml) {
  xml += "<c";
  appendPlace(cell, xml);
  if (cell.format != 0) {
    xml += " s=\"";
    appendDigits(cell.format, xml);
    xml += '"';
  }
  cell.isText() ? appendTextCell(sheet.textOf(cell), xml) : appendNumberCell(cell.number(), xml);
}

void appendColumns(const Sheet& sheet, std::string& xml) {
  if (sheet.columnWidths().empty()) return;
  xml += "<cols>";
  for (const auto& [column, width] : sheet.columnWidths()) {
    const std::string number = std::to_string(column + 1);
    xml.append("<col min=\"").append(number).append("\" max=\"").append(number);
    xml.append("\" width=\"").append(std::to_string(width)).append(R"(" customWidth="1"/>)");
  }
  xml += "</cols>";
}

// The cells tell their row.
void appendRow(const Sheet& sheet, std::uint32_t row, bool follows, std::string& xml) {
  const auto append = [&xml](const char* name, auto number) {
    xml.append(1, ' ').append(name).append("=\"");
    appendDigits(number, xml);
    xml += '"';
  };
  xml += "<row";
  if (!follows) append("r", row + 1);
  const auto height = sheet.rowHeights().find(row);
  if (height != sheet.rowHeights().end()) append("ht", pointsFromTwips(height->second));
  xml += '>';
}

void appendRows(const Sheet& sheet, std::string& xml) {
  const std::vector<Cell>& cells = sheet.cells();
  std::uint32_t nextRow = 0;
  for (auto cell = cells.begin(); cell != cells.end();) {
    const std::uint32_t row = cell->row;
    appendRow(sheet, row, row == std::exchange(nextRow, row + 1), xml);
    for (; cell != cells.end() && cell->row == row; ++cell) appendCell(sheet, *cell, xml);
    xml += "</row>";
  }
}

bool isHex(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

// Text that looks like the way in which a workbook tells a character by its number.
bool looksEscaped(std::string_view text) {
  return text.size() > 6 && text[1] == 'x' && text[6] == '_' &&
         std::all_of(&text[2], &text[6], isHex);
}

// U+FFFE and U+FFFF, as UTF-8.
bool isNoCharacter(std::string_view text) {
  return text.starts_with("\xEF\xBF\xBE") || text.starts_with("\xEF\xBF\xBF");
}

// How many bytes at the front stand for themselves.
std::size_t plainLength(std::string_view text) {
  const auto isSpecial = [](char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '&' || c == '<' || c == '>' || c == '"' ||
           c == '_' || c == '\xEF';
  };
  return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isSpecial) - text.begin());
}

// Appends what the first byte stands for; gives how many bytes are done with.
std::size_t appendSpecial(std::string_view text, std::string& xml) {
  switch (text.front()) {
    case '&': xml += "&amp;"; return 1;
    case '<': xml += "&lt;"; return 1;
    case '>': xml += "&gt;"; return 1;
    case '"': xml += "&quot;"; return 1;
    case '_': xml += looksEscaped(text) ? "_x005F_" : "_"; return 1;
    case '\t':
    case '\n': xml += text.front(); return 1;
    case '\xEF':
      if (isNoCharacter(text)) return 3;
      xml += text.front();
      return 1;
    default: return 1;
  }
}

}  // namespace

void appendXlsxText(std::string_view utf8, std::string& xml) {
  while (!utf8.empty()) {
    const std::size_t plain = plainLength(utf8);
    xml.append(utf8.substr(0, plain));
    utf8.remove_prefix(plain);
    if (!utf8.empty()) utf8.remove_prefix(appendSpecial(utf8, xml));
  }
}

void appendXlsxSheet(const Sheet& sheet, std::string& xml) {
  const bool hasPictures = !sheet.pictures().empty();
  xml +=
      R"(<?xml version="1.0" encoding="UTF-8"?>
<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main")";
  if (hasPictures)
    xml += R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")";
  xml += '>';
  appendColumns(sheet, xml);
  xml += "<sheetData>";
  appendRows(sheet, xml);
  xml += "</sheetData>";
  if (hasPictures) xml += R"(<drawing r:id="rId1"/>)";
  xml += "</worksheet>";
}

}  // namespace qor
