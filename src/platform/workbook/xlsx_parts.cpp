// The small parts of a workbook.
#include "platform/workbook/xlsx_parts.h"

#include <algorithm>
#include <cstdio>

#include "platform/workbook/cell_formats.h"
#include "platform/workbook/sheet.h"

namespace qor {
namespace {

constexpr std::string_view kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
constexpr std::string_view kMain =
    "xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"";
constexpr std::string_view kRelationKinds =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
constexpr std::string_view kPackage = "http://schemas.openxmlformats.org/package/2006/";
constexpr std::string_view kTypes = "application/vnd.openxmlformats-officedocument.";
constexpr int kEmuPerPixel = 9525;

std::string quoted(std::string_view name, std::string_view value) {
  return std::string(" ").append(name).append("=\"").append(value) + '"';
}
std::string quoted(std::string_view name, std::size_t value) {
  return quoted(name, std::to_string(value));
}

std::string id(std::size_t number) {
  return "rId" + std::to_string(number);
}

std::string relation(std::size_t number, std::string_view kind, const std::string& target) {
  return "<Relationship" + quoted("Id", id(number)) +
         quoted("Type", std::string(kRelationKinds).append("/").append(kind)) +
         quoted("Target", target) + "/>";
}

std::string relations(const std::string& body) {
  return std::string(kHead) + "<Relationships" +
         quoted("xmlns", std::string(kPackage) + "relationships") + ">" + body + "</Relationships>";
}

// "<name count="2">" and its end.
std::string counted(const std::string& name, std::size_t count, const std::string& body) {
  return "<" + name + quoted("count", count) + ">" + body + "</" + name + ">";
}

std::string fontXml(const CellFont& font) {
  char colour[9];
  std::snprintf(colour, sizeof colour, "FF%06X", paletteColour(font.colour));
  std::string name;
  appendXlsxText(font.name, name);
  return std::string("<font>") + (font.bold ? "<b/>" : "") + (font.italic ? "<i/>" : "") + "<sz" +
         quoted("val", std::to_string(font.size)) + "/><color" + quoted("rgb", colour) + "/><name" +
         quoted("val", name) + "/><charset" + quoted("val", std::to_string(font.charset)) +
         "/></font>";
}

std::string numberFormats() {
  std::string body;
  std::size_t count = 0;
  for (auto number = static_cast<int>(NumberFormat::whole);
       number <= static_cast<int>(NumberFormat::date); ++number, ++count) {
    const auto format = static_cast<NumberFormat>(number);
    body += "<numFmt" + quoted("numFmtId", formatNumber(format)) +
            quoted("formatCode", formatCode(format)) + "/>";
  }
  return counted("numFmts", count, body);
}

std::string cellFormat(const CellFormat& format) {
  return "<xf" + quoted("numFmtId", formatNumber(format.number)) + quoted("fontId", format.font) +
         R"( fillId="0" borderId="0" xfId="0" applyNumberFormat="1" applyFont="1"/>)";
}

std::string anchor(const SheetPicture& picture, std::size_t number, std::size_t relationNumber) {
  const auto corner = [](std::string_view axis, std::uint32_t place) {
    const std::string name(axis);
    return "<xdr:" + name + ">" + std::to_string(place) + "</xdr:" + name + "><xdr:" + name +
           "Off>0</xdr:" + name + "Off>";
  };
  const std::string size =
      quoted("cx", std::to_string(std::int64_t{picture.width} * kEmuPerPixel)) +
      quoted("cy", std::to_string(std::int64_t{picture.height} * kEmuPerPixel));
  const std::string name = std::to_string(number);
  return "<xdr:oneCellAnchor><xdr:from>" + corner("col", picture.column) +
         corner("row", picture.row) + "</xdr:from><xdr:ext" + size +
         "/><xdr:pic><xdr:nvPicPr><xdr:cNvPr" + quoted("id", name) +
         quoted("name", "Picture " + name) +
         "/><xdr:cNvPicPr/></xdr:nvPicPr><xdr:blipFill><a:blip" +
         quoted("r:embed", id(relationNumber)) +
         "/><a:stretch><a:fillRect/></a:stretch></xdr:blipFill><xdr:spPr><a:xfrm>"
         "<a:off x=\"0\" y=\"0\"/><a:ext" +
         size +
         "/></a:xfrm><a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom></xdr:spPr></xdr:pic>"
         "<xdr:clientData/></xdr:oneCellAnchor>";
}

std::string part(const std::string& name, std::string_view type) {
  return "<Override" + quoted("PartName", "/xl/" + name + ".xml") +
         quoted("ContentType", std::string(kTypes).append(type) + "+xml") + "/>";
}

}  // namespace

std::string xlsxPictureName(std::size_t number, EmbeddedKind kind) {
  return "image" + std::to_string(number + 1) + (kind == EmbeddedKind::png ? ".png" : ".jpeg");
}

XlsxDrawing xlsxDrawing(const Sheet& sheet, const std::vector<EmbeddedKind>& pictures) {
  XlsxDrawing drawing;
  drawing.xml = std::string(kHead) +
                "<xdr:wsDr xmlns:xdr=\"http://schemas.openxmlformats.org/drawingml/2006/"
                "spreadsheetDrawing\" xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/"
                "main\"" +
                quoted("xmlns:r", kRelationKinds) + ">";
  std::map<std::size_t, std::size_t> numbers;  // of the relations of pictures
  std::string targets;
  std::size_t shape = 0;
  for (const SheetPicture& picture : sheet.pictures()) {
    const auto [place, isNew] = numbers.emplace(picture.picture, numbers.size() + 1);
    if (isNew)
      targets +=
          relation(place->second, "image",
                   "../media/" + xlsxPictureName(picture.picture, pictures[picture.picture]));
    drawing.xml += anchor(picture, ++shape, place->second);
  }
  drawing.xml += "</xdr:wsDr>";
  drawing.relations = relations(targets);
  return drawing;
}

std::string xlsxSheetRelations(std::size_t number) {
  return relations(
      relation(1, "drawing", "../drawings/drawing" + std::to_string(number + 1) + ".xml"));
}

std::string xlsxStyles(const CellFormats& formats) {
  std::string fonts;
  for (const CellFont& font : formats.fonts()) fonts += fontXml(font);
  std::string cells;
  for (const CellFormat& format : formats.formats()) cells += cellFormat(format);
  return std::string(kHead).append("<styleSheet ").append(kMain) + ">" + numberFormats() +
         counted("fonts", formats.fonts().size(), fonts) +
         R"(<fills count="2"><fill><patternFill patternType="none"/></fill>)"
         R"(<fill><patternFill patternType="gray125"/></fill></fills>)"
         R"(<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>)"
         R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/>)"
         R"(</cellStyleXfs>)" +
         counted("cellXfs", formats.formats().size(), cells) +
         R"(<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles>)"
         "</styleSheet>";
}

std::string xlsxWorkbook(std::size_t sheetCount) {
  std::string sheets;
  for (std::size_t number = 0; number < sheetCount; ++number)
    sheets += "<sheet" + quoted("name", sheetName(number)) + quoted("sheetId", number + 1) +
              quoted("r:id", id(number + 1)) + "/>";
  return std::string(kHead).append("<workbook ").append(kMain) + quoted("xmlns:r", kRelationKinds) +
         "><sheets>" + sheets + "</sheets></workbook>";
}

std::string xlsxWorkbookRelations(std::size_t sheetCount) {
  std::string body;
  for (std::size_t number = 1; number <= sheetCount; ++number)
    body += relation(number, "worksheet", "worksheets/sheet" + std::to_string(number) + ".xml");
  return relations(body + relation(sheetCount + 1, "styles", "styles.xml"));
}

std::string xlsxRelations() {
  return relations(relation(1, "officeDocument", "xl/workbook.xml"));
}

std::string xlsxContentTypes(std::size_t sheetCount, const std::vector<std::size_t>& drawings) {
  std::string types = std::string(kHead) + "<Types" +
                      quoted("xmlns", std::string(kPackage) + "content-types") + ">";
  for (const auto& [extension, type] :
       {std::pair("rels", "application/vnd.openxmlformats-package.relationships+xml"),
        {"xml", "application/xml"},
        {"png", "image/png"},
        {"jpeg", "image/jpeg"}})
    types += "<Default" + quoted("Extension", extension) + quoted("ContentType", type) + "/>";
  types += part("workbook", "spreadsheetml.sheet.main") + part("styles", "spreadsheetml.styles");
  for (std::size_t number = 1; number <= sheetCount; ++number)
    types += part("worksheets/sheet" + std::to_string(number), "spreadsheetml.worksheet");
  for (const std::size_t sheet : drawings)
    types += part("drawings/drawing" + std::to_string(sheet + 1), "drawing");
  return types + "</Types>";
}

}  // namespace qor
