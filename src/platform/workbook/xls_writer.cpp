// BIFF8 workbooks ([MS-XLS] 2.1.7.20): what is of the whole book stands before its sheets in the
// file, so the sheets wait in a spool.
#include <vector>

#include "base/errors.h"
#include "platform/system/output_file.h"
#include "platform/system/spool_file.h"
#include "platform/workbook/biff_records.h"
#include "platform/workbook/cell_formats.h"
#include "platform/workbook/compound_file.h"
#include "platform/workbook/sheet.h"
#include "platform/workbook/workbook_writer.h"
#include "platform/workbook/xls_drawings.h"
#include "platform/workbook/xls_globals.h"
#include "platform/workbook/xls_strings.h"

namespace qor {
namespace {

constexpr std::uint64_t kMostBytes = 0x7FFFFFFF;
constexpr std::uint32_t kDefaultColumnWidth = 8;  // characters

class XlsWriter : public WorkbookWriter {
 public:
  explicit XlsWriter(OutputFile& file)
      : file_(file), sheets_(file.target()), strings_(file.target()), drawings_(file.target()) {}

  std::uint32_t mostColumns() const override { return 256; }

  std::size_t addPicture(const EmbeddedPicture& picture) override {
    return drawings_.addPicture(picture);
  }

  std::int64_t picturesLeftOut() const override { return drawings_.leftOut(); }

  void addSheet(std::size_t number, const Sheet& sheet) override {
    if (number >= places_.size()) places_.resize(number + 1);
    places_[number] = sheets_.size();
    records_.clear();
    appendHead(sheet);
    for (const Cell& cell : sheet.cells()) appendCell(sheet, cell);
    drawings_.appendSheet(sheet, records_);
    appendTail(number == 0);
    sheets_.write(records_);
  }

  void finish(std::size_t sheetCount, const CellFormats& formats) override {
    const std::string head = xlsGlobals(formats);
    const std::string tail = xlsEnd();
    const std::uint64_t size = head.size() + xlsSheetList(places_, 0).size() + drawings_.size() +
                               strings_.size() + tail.size();
    if (places_.size() != sheetCount || size + sheets_.size() > kMostBytes)
      throw FileError(file_.target() + ": an XLS file can't hold so much", ErrorKind::cannotWrite);
    writeCompoundFile(file_, "Workbook", [&](ByteSink& sink) {
      sink.write(head);
      sink.write(xlsSheetList(places_, size));
      drawings_.writeTo(sink);
      strings_.writeTo(sink);
      sink.write(tail);
      sheets_.copyTo(sink);
    });
  }

 private:
  void appendHead(const Sheet& sheet) {
    const auto record = [this](BiffRecord type, const LittleEndian& body) {
      appendRecord(type, body, records_);
    };
    records_ += xlsBof(XlsPart::sheet);
    record(kBiffDefaultRowHeight, LittleEndian().u16(0).u16(kUsualRowHeight));
    record(kBiffDefaultColumnWidth, LittleEndian().u16(kDefaultColumnWidth));
    for (const auto& [column, width] : sheet.columnWidths())
      record(kBiffColumn, LittleEndian()
                              .u16(column)
                              .u16(column)
                              .u16(width * 256)
                              .u16(kXlsFirstCellFormat)
                              .u16(0)
                              .u16(0));
    const Sheet::Extent extent = sheet.extent();
    record(kBiffDimensions, LittleEndian()
                                .u32(extent.firstRow)
                                .u32(extent.endRow)
                                .u16(extent.firstColumn)
                                .u16(extent.endColumn)
                                .u16(0));
    constexpr std::uint32_t kUsualRow = 0x0100;
    for (const auto& [row, height] : sheet.rowHeights())
      record(kBiffRow, LittleEndian()
                           .u16(row)
                           .u16(extent.firstColumn)
                           .u16(extent.endColumn)
                           .u16(height)
                           .u32(0)
                           .u16(kUsualRow)
                           .u16(kXlsFirstCellFormat));
  }

  void appendCell(const Sheet& sheet, const Cell& cell) {
    cell_.clear();
    cell_.u16(cell.row).u16(cell.column).u16(kXlsFirstCellFormat + cell.format);
    if (cell.isText()) {
      appendRecord(kBiffTextCell, cell_.u32(strings_.numberOf(sheet.textOf(cell))), records_);
    } else {
      appendRecord(kBiffNumberCell, cell_.real(cell.number()), records_);
    }
  }

  void appendTail(bool isFirst) {
    constexpr std::uint32_t kUsualView = 0x00B6;
    constexpr std::uint32_t kSelectedAndShown = 0x0600;
    constexpr std::uint32_t kGridColour = 64;
    appendRecord(kBiffWindow2,
                 LittleEndian()
                     .u16(kUsualView | (isFirst ? kSelectedAndShown : 0))
                     .zeros(4)
                     .u32(kGridColour)
                     .zeros(8),
                 records_);
    records_ += xlsEnd();
  }

  OutputFile& file_;
  SpoolFile sheets_;
  XlsStrings strings_;
  XlsDrawings drawings_;
  std::vector<std::uint64_t> places_;  // of sheets, in the spool
  std::string records_;
  LittleEndian cell_;
};

}  // namespace

std::unique_ptr<WorkbookWriter> makeXlsWriter(OutputFile& file) {
  return std::make_unique<XlsWriter>(file);
}

}  // namespace qor
