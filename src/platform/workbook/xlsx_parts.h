// The XML of a workbook's parts (ECMA-376, part 1, 18 and 20).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/pictures/embedded_picture.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {
// "image1.png" for number 0.
std::string xlsxPictureName(std::size_t number, EmbeddedKind kind);

void appendXlsxSheet(const Sheet& sheet, std::string& xml);

// What a text in XML stands for; characters that XML can't hold are left out.
void appendXlsxText(std::string_view utf8, std::string& xml);

// The pictures of a sheet, and where their files are.
struct XlsxDrawing {
  std::string xml;
  std::string relations;
};
XlsxDrawing xlsxDrawing(const Sheet& sheet, const std::vector<EmbeddedKind>& pictures);
std::string xlsxSheetRelations(std::size_t number);

std::string xlsxStyles(const CellFormats& formats);
std::string xlsxWorkbook(std::size_t sheetCount);
std::string xlsxWorkbookRelations(std::size_t sheetCount);
std::string xlsxRelations();
std::string xlsxContentTypes(std::size_t sheetCount, const std::vector<std::size_t>& drawings);

}  // namespace qor
