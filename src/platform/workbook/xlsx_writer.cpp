// Office Open XML workbooks: the parts of the package, sheets first as they come.
#include <vector>

#include "platform/pictures/embedded_picture.h"
#include "platform/system/output_file.h"
#include "platform/workbook/cell_formats.h"
#include "platform/workbook/sheet.h"
#include "platform/workbook/workbook_writer.h"
#include "platform/workbook/xlsx_parts.h"
#include "platform/workbook/zip_writer.h"

namespace qor {
namespace {

class XlsxWriter : public WorkbookWriter {
 public:
  explicit XlsxWriter(OutputFile& file) : zip_(file) {}

  std::uint32_t mostColumns() const override { return 16384; }

  std::size_t addPicture(const EmbeddedPicture& picture) override {
    const std::size_t number = pictures_.size();
    pictures_.push_back(picture.kind);
    zip_.addStored("xl/media/" + xlsxPictureName(number, picture.kind), picture.bytes);
    return number;
  }

  void addSheet(std::size_t number, const Sheet& sheet) override {
    const std::string name = std::to_string(number + 1) + ".xml";
    xml_.clear();
    appendXlsxSheet(sheet, xml_);
    zip_.add("xl/worksheets/sheet" + name, xml_);
    if (sheet.pictures().empty()) return;
    drawings_.push_back(number);
    zip_.add("xl/worksheets/_rels/sheet" + name + ".rels", xlsxSheetRelations(number));
    const XlsxDrawing drawing = xlsxDrawing(sheet, pictures_);
    zip_.add("xl/drawings/drawing" + name, drawing.xml);
    zip_.add("xl/drawings/_rels/drawing" + name + ".rels", drawing.relations);
  }

  void finish(std::size_t sheetCount, const CellFormats& formats) override {
    zip_.add("xl/styles.xml", xlsxStyles(formats));
    zip_.add("xl/workbook.xml", xlsxWorkbook(sheetCount));
    zip_.add("xl/_rels/workbook.xml.rels", xlsxWorkbookRelations(sheetCount));
    zip_.add("_rels/.rels", xlsxRelations());
    zip_.add("[Content_Types].xml", xlsxContentTypes(sheetCount, drawings_));
    zip_.finish();
  }

 private:
  ZipWriter zip_;
  std::vector<EmbeddedKind> pictures_;
  std::vector<std::size_t> drawings_;  // the sheets that have one
  std::string xml_;
};

}  // namespace

std::unique_ptr<WorkbookWriter> makeXlsxWriter(OutputFile& file) {
  return std::make_unique<XlsxWriter>(file);
}

std::string sheetName(std::size_t number) {
  return "Sheet" + std::to_string(number + 1);
}

}  // namespace qor
