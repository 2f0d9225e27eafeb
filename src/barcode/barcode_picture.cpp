// Pictures of barcodes.
#include "barcode/barcode_picture.h"

#include <algorithm>

#include "barcode/symbol_drawing.h"
#include "base/app_options.h"
#include "base/path.h"
#include "base/units.h"
#include "document/side_picture.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/text_encoding.h"

namespace qor {
namespace {

bool canBeFileName(std::string_view value) {
  return std::none_of(value.begin(), value.end(), [](char c) {
    return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ';
  });
}

}  // namespace

std::string barcodePictureName(const VData_BarCode& code, std::string_view ending) {
  if (!canBeFileName(code.Value)) return {};
  std::string name(sideFileStem(AppOptions.FileName));
  name += "_barcode_" + utf8FromCodePage(code.Value, code.Settings->Page.BaseCodePage) + "_" +
          std::to_string(roundedMillimetres(code.Left)) + "_" +
          std::to_string(roundedMillimetres(code.Top));
  return name.append(ending);
}

void writeBarcodePictures(VData_BarCode& code, int dpi) {
  if (code.BarcodeType <= 0 || code.BarcodeType == kCodabar || dpi <= 0) return;
  const std::string name = barcodePictureName(code, ".jpeg");
  if (name.empty()) return;
  const Rect item = {code.Left, code.Top, code.Right, code.Bottom};
  const Rect place = {0, 0, clamped(item.width()), clamped(item.height())};
  const std::int32_t dot = kTwipsPerInch / dpi;
  saveSidePicture(item, dpi, code.Settings->Page, {name, barcodePictureName(code, ".jpg")},
                  [&](Canvas& canvas) { drawSymbol(code, canvas, place, dot); });
}

}  // namespace qor
