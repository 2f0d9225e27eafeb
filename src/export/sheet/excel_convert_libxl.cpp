// Pages as sheets.
#include "export/sheet/excel_convert_libxl.h"

#include <algorithm>
#include <utility>

#include "barcode/barcode_picture.h"
#include "base/text.h"
#include "base/units.h"
#include "document/page_loop.h"
#include "document/vdocpage.h"
#include "export/sheet/cell_teller.h"
#include "export/sheet/sheet_colours.h"
#include "platform/system/text_encoding.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {
namespace {

constexpr const char* kUsualFace = "Courier New";
constexpr std::uint32_t kUsualWidth = 18;  // characters, of a column without text
constexpr std::uint32_t kMostWidth = 255;
constexpr std::int32_t kMostSize = 409;  // points
constexpr int kMostDecimals = 6;         // that have a format

bool isControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

// Line ends and tabs within a text are a cell's, too.
bool showsNothing(char c) {
  return isControl(c) && c != '\n' && c != '\t';
}

std::string_view trimmedRight(std::string_view text) {
  while (!text.empty() && (text.back() == ' ' || isControl(text.back()))) text.remove_suffix(1);
  return text;
}

}  // namespace

ExcelConvertLibXL::ExcelConvertLibXL(WorkbookWriter& writer, Options options)
    : writer_(writer),
      sheets_(writer),
      pictures_(writer),
      options_(std::move(options)),
      text_(options_.codePage) {
}

// --- Pages and sheets ----------------------------------------------------------------------------

void ExcelConvertLibXL::WritePage(const VDocPage& page) {
  if (options_.pagePerSheet && page_ > 1) {
    next_row_ = 0;
    addSheet();
  }
  const std::size_t sheet = options_.pagePerSheet ? static_cast<std::size_t>(page_) - 1 : 0;
  writeBarcodePicturesOf(page, options_.pictureStem);
  const Sheet* own = options_.pagePerSheet ? sheets_.at(sheet) : nullptr;
  const bool isShared = own != nullptr && !own->cells().empty();
  const std::int64_t before = isShared ? own->replacedCells() : 0;
  writeLines(page, sheet);
  if (isShared) losses_.covered += own->replacedCells() - before;
  FitColumns(static_cast<std::size_t>(page_) - 1);
  ++page_;
  sheets_.release([this](std::size_t number) { return isWanted(number); });
}

void ExcelConvertLibXL::writeLines(const VDocPage& page, std::size_t sheet) {
  forEachLine(page, [&](const VDocStr& line) {
    row_ = next_row_++;
    column_ = 0;
    WriteLine(line, sheet);
  });
}

void ExcelConvertLibXL::WriteLine(const VDocStr& line, std::size_t sheet) {
  sheet_ = sheet;
  CellTeller teller(*this);
  line.tell(teller);
}

void ExcelConvertLibXL::SaveBook() {
  sheets_.releaseAll();
  writer_.finish(sheets_.count(), formats_);
}

SheetLosses ExcelConvertLibXL::losses() const {
  SheetLosses losses = losses_;
  losses.fonts = formats_.fontsLeftOut();
  return losses;
}

// Whether cells of a page to come may go there. The last sheet is always wanted.
bool ExcelConvertLibXL::isWanted(std::size_t sheet) const {
  if (!options_.pagePerSheet) return sheet == 0;
  const auto page = static_cast<std::int64_t>(sheet) + 1;
  return page >= page_ && page <= options_.pageCount;
}

// What was the last sheet may be done with: its columns are fitted as they would be behind the page
// of its number.
void ExcelConvertLibXL::addSheet() {
  const std::size_t last = sheets_.count() - 1;
  const auto page = static_cast<std::int64_t>(last) + 1;
  if (!isWanted(last) && page >= page_ && page <= options_.pageCount) FitColumns(last);
  sheets_.add();
  sheets_.release([this](std::size_t number) { return isWanted(number); });
}

// As wide as their longest text. Numbers have no length, and sheets that don't start in their first
// row or column aren't looked at to their end: sheets of the suite have always come out so.
void ExcelConvertLibXL::FitColumns(std::size_t number) {
  Sheet* sheet = sheets_.at(number);
  if (sheet == nullptr) return;
  const Sheet::Extent extent = sheet->extent();
  std::vector<std::uint32_t> longest(extent.endColumn - extent.firstColumn);
  const std::uint32_t lastRow = extent.endRow - extent.firstRow;
  for (const Cell& cell : sheet->cells()) {
    if (cell.row > lastRow || cell.column >= longest.size() || !cell.isText()) continue;
    std::uint32_t& length = longest[cell.column];
    const std::size_t count = characterCount(trimmed(sheet->textOf(cell)));
    length = std::max(length, static_cast<std::uint32_t>(count));
  }
  for (std::uint32_t column = 0; column < longest.size(); ++column)
    sheet->setColumnWidth(
        column, longest[column] < 1 ? kUsualWidth : std::min(longest[column], kMostWidth));
}

// --- Formats -------------------------------------------------------------------------------------

void ExcelConvertLibXL::takeFont(const FontState& font) {
  if (taken_ == font) return;
  taken_ = font;
  looks_.fill(0);
  font_.name = text_.utf8(font.LogFont.faceName());
  std::erase_if(font_.name, isControl);
  if (trimmed(font_.name).empty()) font_.name = kUsualFace;
  font_.size = std::clamp(truncated(font.Height), 1, kMostSize);
  font_.charset = font.LogFont.CharSet;
  font_.bold = font.LogFont.Weight >= kBoldWeight;
  font_.italic = font.LogFont.Italic == 1;
  font_.colour = paletteEntryOf(font.Color).value_or(font_.colour);
}

std::uint32_t ExcelConvertLibXL::makeFormat(std::size_t look) {
  CellFont font = font_;
  if (look == kDate) return formats_.numberOf(font, NumberFormat::date);
  if (look == kText || look == kWhole) {
    font.colour = textColourOf(font_.colour);
    return formats_.numberOf(font, look == kText ? NumberFormat::general : NumberFormat::whole);
  }
  const DecimalLook decimal = decimalLookOf(static_cast<int>(look - kWhole), font_.colour);
  font.colour = decimal.colour;
  return formats_.numberOf(font, decimal.format);
}

void ExcelConvertLibXL::chooseFormat(std::size_t look) {
  if (looks_[look] == 0) looks_[look] = makeFormat(look);
  current_format_ = looks_[look];
}

// --- Cells ---------------------------------------------------------------------------------------

std::int64_t ExcelConvertLibXL::MaxRows() {
  return kMostRows;
}

// A line may go on in further sheets; what has a place of its own has none beyond its sheet.
bool ExcelConvertLibXL::isInside() const {
  const bool isLine = row_ == next_row_ - 1;
  return row_ >= 0 && (isLine || row_ < MaxRows()) && column_ >= 0 &&
         column_ < writer_.mostColumns();
}

template <class Write>
void ExcelConvertLibXL::atPlace(Write write) {
  if (!isInside()) {
    ++losses_.outside;
  } else if (row_ >= MaxRows()) {
    pastTheLastRow(write);
  } else if (Sheet* sheet = sheets_.at(sheet_); sheet != nullptr) {
    write(*sheet, static_cast<std::uint32_t>(row_));
  }
}

// Rows that a sheet has no room for go on in the last one, which is added where they reach its end:
// the row before a further sheet stands in both. A page behind the first of several has its own
// sheet for the last one, and goes on at its top.
template <class Write>
void ExcelConvertLibXL::pastTheLastRow(Write write) {
  const std::int64_t limit = MaxRows();
  const auto sheets = static_cast<std::int64_t>(sheets_.count());
  const auto wrapped = static_cast<std::uint32_t>(row_ % limit);
  if (wrapped == limit - 1) write(sheets_.last(), wrapped);
  if ((row_ + 1) / limit >= sheets) {
    addSheet();
  } else if (sheet_ + 1 == sheets_.count()) {
    ++losses_.replaced;
  }
  write(sheets_.last(), wrapped);
}

void ExcelConvertLibXL::writeText(std::string_view text) {
  chooseFormat(kText);
  atPlace([&](Sheet& sheet, std::uint32_t row) {
    sheet.writeText(row, static_cast<std::uint32_t>(column_), current_format_, text);
    sheet.raiseRow(row, font_.size);
  });
}

void ExcelConvertLibXL::WriteString(std::string_view text) {
  buffer_.clear();
  text_.append(trimmedRight(text), buffer_);
  std::erase_if(buffer_, showsNothing);
  if (buffer_.size() > kMostCellText && characterCount(buffer_) > kMostCellText) {
    ++losses_.cut;
    buffer_.resize(firstCharacters(buffer_, kMostCellText).size());
  }
  writeText(buffer_);
}

void ExcelConvertLibXL::writeNumber(double number) {
  atPlace([&](Sheet& sheet, std::uint32_t row) {
    sheet.writeNumber(row, static_cast<std::uint32_t>(column_), current_format_, number);
    sheet.raiseRow(row, font_.size);
  });
}

void ExcelConvertLibXL::WriteInteger(double number) {
  chooseFormat(kWhole);
  writeNumber(number);
}

// More decimals have no format of their own: they take that of the cell before.
void ExcelConvertLibXL::WriteDouble(double number, int decimals) {
  if (decimals <= kMostDecimals) chooseFormat(kWhole + static_cast<std::size_t>(decimals));
  writeNumber(number);
}

void ExcelConvertLibXL::WriteDate(double day) {
  chooseFormat(kDate);
  writeNumber(day);
}

void ExcelConvertLibXL::AddPicture(const std::optional<KnownPicture>& picture) {
  if (picture) AddPictureSized(picture, picture->width, picture->height);
}

void ExcelConvertLibXL::AddPictureSized(const std::optional<KnownPicture>& picture, int width,
                                        int height) {
  if (!picture || width <= 0 || height <= 0) return;
  Sheet* sheet = isInside() && row_ < MaxRows() ? sheets_.at(sheet_) : nullptr;
  if (sheet == nullptr) {
    ++losses_.outside;
  } else {
    sheet->addPicture({static_cast<std::uint32_t>(row_), static_cast<std::uint32_t>(column_),
                       picture->number, width, height});
  }
}

}  // namespace qor
