// Items as cells. What is no text has a blank in its cell; pictures hang from a cell of their own.
#include "export/sheet/cell_teller.h"

#include <cmath>
#include <utility>

#include "barcode/barcode_picture.h"
#include "base/units.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "export/sheet/cell_value.h"
#include "export/sheet/excel_convert_libxl.h"

namespace qor {
namespace {

constexpr double kColumnWidth = 16;  // mm
constexpr double kRowHeight = 4.5;

// The cell behind the one that holds this place.
std::int32_t cellAt(std::int32_t twips, double size) {
  return truncated(twips * kMillimetresPerInch / kTwipsPerInch / size + 1);
}

// The same of a barcode, whose place is rounded, halves to the even one.
std::int64_t barcodeCellAt(std::int32_t twips, double size) {
  return std::llrint(roundedMillimetres(twips) / size + 1);
}

// Of a picture in its box, which has always been taken for pixels.
int sizeInBox(std::int32_t from, std::int32_t to) {
  return static_cast<int>((std::int64_t{to} - from) * kPointsPerInch / kTwipsPerInch);
}

}  // namespace

// A text takes its font over before it is written; the blank of anything else has the one before.
void CellTeller::font(VData_Font& item) {
  font_ = &*item.Font;
}

void CellTeller::writeBlank() {
  convert_.writeText(" ");
}

void CellTeller::text(VData_Text& text) {
  using Kind = CellValue::Kind;
  convert_.takeFont(*font_);
  const CellValue value = cellValueOf(text.Text);
  if (value.kind != Kind::blank) {
    if (text.Left != 0) convert_.column_ = cellAt(text.Left, kColumnWidth);
    if (text.Top != 0) convert_.row_ = cellAt(text.Top, kRowHeight);
  }
  switch (value.kind) {
    case Kind::blank: writeBlank(); break;
    case Kind::whole: convert_.WriteInteger(value.number); break;
    case Kind::decimal: convert_.WriteDouble(value.number, value.decimals); break;
    case Kind::date: convert_.WriteDate(value.number); break;
    case Kind::text: convert_.WriteString(text.Text); break;
  }
  ++convert_.column_;
}

void CellTeller::shape(VData_Shape&) {
  writeBlank();
  ++convert_.column_;
}

void CellTeller::image(VData_Image& image) {
  writeBlank();
  convert_.row_ = cellAt(image.Top, kRowHeight);
  convert_.column_ = cellAt(image.Left, kColumnWidth);
  if (image.ImageNumber == -1) {
    const auto picture =
        convert_.pictures_.pictureNamed(image.FileName, image.Settings->Page.BaseCodePage);
    if (image.ImageStretch == kFillStretch) {
      convert_.AddPictureSized(picture, sizeInBox(image.Left, image.Right),
                               sizeInBox(image.Top, image.Bottom));
    } else if (image.ImageStretch == kNaturalStretch || image.ImageStretch == kFitStretch) {
      convert_.AddPicture(picture);
    }
  }
  convert_.column_ += 2;
}

void CellTeller::barcode(VData_BarCode& code) {
  writeBlank();
  convert_.takeFont(*font_);
  convert_.row_ = barcodeCellAt(code.Top, kRowHeight);
  convert_.column_ = barcodeCellAt(code.Left, kColumnWidth);
  const std::string name = barcodePictureName(code, convert_.options_.pictureStem, ".jpg");
  if (auto file = readBarcodePicture(name))
    convert_.AddPicture(convert_.pictures_.pictureOf(*std::move(file)));
  convert_.column_ += 2;
}

}  // namespace qor
