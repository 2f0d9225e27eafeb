// Pictures of barcodes.
#include "barcode/barcode_picture.h"

#include <algorithm>

#include "barcode/symbol_drawing.h"
#include "base/app_options.h"
#include "base/path.h"
#include "base/text.h"
#include "base/units.h"
#include "document/side_picture.h"
#include "document/vdata.h"
#include "document/vdocpage.h"
#include "document/vset.h"
#include "platform/text_encoding.h"

namespace qor {
namespace {

bool canBeFileName(std::string_view value) {
  return std::none_of(value.begin(), value.end(), [](char c) {
    return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ';
  });
}

BarcodePlace placeOf(const VData_BarCode& code, std::string_view stem) {
  return {stem, code.Value, code.Settings->Page.BaseCodePage, code.Left, code.Top};
}

void writePictures(VData_BarCode& code, int dpi, std::string_view stem) {
  if (code.BarcodeType <= 0 || code.BarcodeType == kCodabar || dpi <= 0) return;
  const BarcodePlace picture = placeOf(code, stem);
  const std::string name = barcodePictureName(picture, ".jpeg");
  if (name.empty()) return;
  const Rect item = {code.Left, code.Top, code.Right, code.Bottom};
  const Rect place = {0, 0, clamped(item.width()), clamped(item.height())};
  const std::int32_t dot = kTwipsPerInch / dpi;
  saveSidePicture(item, dpi, code.Settings->Page, {name, barcodePictureName(picture, ".jpg")},
                  [&](Canvas& canvas) { drawSymbol(code, canvas, place, dot); });
}

}  // namespace

std::string barcodePictureName(const BarcodePlace& place, std::string_view ending) {
  if (!canBeFileName(place.value)) return {};
  std::string name(place.stem);
  name += "_barcode_" + utf8FromCodePage(place.value, place.codePage) + "_" +
          std::to_string(roundedMillimetres(place.left)) + "_" +
          std::to_string(roundedMillimetres(place.top));
  return name.append(ending);
}

std::string barcodePictureName(const VData_BarCode& code, std::string_view ending) {
  return barcodePictureName(placeOf(code, sideFileStem(AppOptions.FileName)), ending);
}

void writeBarcodePictures(VData_BarCode& code, int dpi) {
  writePictures(code, dpi, sideFileStem(AppOptions.FileName));
}

void writeBarcodePicturesOf(VDocPage& page, std::string_view stem) {
  for (VDocStr& line : page.lines()) {
    for (VData& item : line.items()) {
      auto* code = dynamic_cast<VData_BarCode*>(&item);
      if (code != nullptr && !trimmed(code->Value).empty()) writePictures(*code, kPictureDpi, stem);
    }
  }
}

}  // namespace qor
