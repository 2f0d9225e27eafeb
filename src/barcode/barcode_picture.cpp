// Pictures of barcodes.
#include "barcode/barcode_picture.h"

#include <algorithm>

#include "barcode/symbol_drawing.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "base/units.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/bitmap_canvas.h"
#include "platform/messages.h"
#include "platform/output_file.h"
#include "platform/text_encoding.h"

namespace qor {
namespace {

bool canBeFileName(std::string_view value) {
  return std::none_of(value.begin(), value.end(), [](char c) {
    return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ';
  });
}

// No longer than a side of the sheet.
int withinSheet(std::int64_t dots, const VSetPage& page, int dpi) {
  const double side = std::max(page.PaperWidth, page.PaperHeight);
  return clamped(std::min<std::int64_t>(dots, pixelsFromMillimetres(side, dpi)));
}

void writePicture(const PixelView& pixels, int dpi, const std::string& name) {
  OutputFile file(name);
  encodePicture(pixels, PictureFormat::jpeg, dpi, file);
  file.commit();
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
  const std::int32_t dot = kTwipsPerInch / dpi;
  const std::string name = barcodePictureName(code, ".jpeg");
  if (dot == 0 || name.empty()) return;
  const Rect item = {code.Left, code.Top, code.Right, code.Bottom};
  const int width = withinSheet(item.width() / dot, code.Settings->Page, dpi);
  const int height = withinSheet(item.height() / dot, code.Settings->Page, dpi);
  if (width <= 0 || height <= 0) return;
  try {
    BitmapCanvas bitmap(width, height, kTwipsPerInch / dot);
    drawSymbol(code, bitmap.canvas(), {0, 0, clamped(item.width()), clamped(item.height())}, dot);
    writePicture(bitmap.pixels(), dpi, name);
    writePicture(bitmap.pixels(), dpi, barcodePictureName(code, ".jpg"));
  } catch (const FileError& error) {
    showWarning(error.what());
  }
}

}  // namespace qor
