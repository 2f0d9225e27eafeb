// Pictures of barcodes.
#include "barcode/barcode_picture.h"

#include <algorithm>
#include <cctype>

#include "barcode/symbol_drawing.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "base/text.h"
#include "base/units.h"
#include "document/item_visitor.h"
#include "document/page_loop.h"
#include "document/side_picture.h"
#include "document/vdata.h"
#include "document/vdocpage.h"
#include "document/vset.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::uint64_t kMaxBarcodePicture = 64U << 20;

// A value that no file can bear shows this much of itself in the name of its picture.
constexpr std::size_t kMaxNamedPart = 40;

bool canBeFileName(std::string_view value) {
  return std::none_of(value.begin(), value.end(), [](char c) {
    return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ';
  });
}

// What stands for a value that no file can bear, as a web address in a QR code: its start and a
// hash.
std::string standInOf(std::string_view value) {
  std::string start(value.substr(0, kMaxNamedPart));
  std::replace_if(
      start.begin(), start.end(),
      [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return start + "~" + hashText(value);
}

BarcodePlace placeOf(const VData_BarCode& code, std::string_view stem) {
  return {stem, code.Value, code.Settings->Page.BaseCodePage, code.Left, code.Top};
}

// The rectangle of the picture, and the item's rectangle in it: the item's own size, or, where its
// box has none, as large as what its bars cover.
struct PictureFrame {
  Rect frame;
  Rect item;
};

PictureFrame frameOf(const VData_BarCode& code) {
  const Rect item = {code.Left, code.Top, code.Right, code.Bottom};
  const bool hasBox = item.width() > 0 && item.height() > 0;
  const Rect frame = hasBox ? item : symbolExtent(code, item).value_or(Rect());
  const auto inFrame = [](std::int32_t place, std::int32_t corner) {
    return clamped(std::int64_t{place} - corner);
  };
  return {frame,
          {inFrame(item.left, frame.left), inFrame(item.top, frame.top),
           inFrame(item.right, frame.left), inFrame(item.bottom, frame.top)}};
}

void writePictures(const VData_BarCode& code, int dpi, std::string_view stem) {
  if (code.BarcodeType <= 0 || code.BarcodeType == kCodabar || dpi <= 0) return;
  const BarcodePlace picture = placeOf(code, stem);
  const PictureFrame place = frameOf(code);
  const std::int32_t dot = wholeTwipsPerDot(dpi);
  saveSidePicture(place.frame, dpi,
                  {barcodePictureName(picture, ".jpeg"), barcodePictureName(picture, ".jpg")},
                  [&](Canvas& canvas) { drawSymbol(code, canvas, place.item, dot); });
}

// Why an export has no picture of the barcode, or nothing; `dot` is what a dot of it is in twips.
std::string reasonForNone(const VData_BarCode& code, std::int32_t dot) {
  const std::string start = toldName(code);
  if (code.BarcodeType == kInvalid) return start + "not a value of its type";
  if (code.BarcodeType <= 0 || code.BarcodeType == kCodabar) return start + "its type is not drawn";
  const auto shown = symbolExtent(code, {code.Left, code.Top, code.Right, code.Bottom});
  if (!shown) return start + "no symbol can be made of it";
  const Rect frame = frameOf(code).frame;
  const auto smallest = std::min({frame.width(), frame.height()});
  const bool nothing = shown->width() == 0 || shown->height() == 0 || smallest < dot;
  return nothing ? start + "its bars cover nothing" : "";
}

void exportPicture(const VData_BarCode& code, std::string_view stem, std::int32_t page) {
  std::string reason;
  try {
    writePictures(code, kPictureDpi, stem);
    reason = reasonForNone(code, wholeTwipsPerDot(kPictureDpi));
  } catch (const ConversionError& error) {
    reason = error.what();
  } catch (const PictureError& error) {
    reason = toldName(code) + error.what();
  }
  if (!reason.empty()) showWarning(placeInReport(page) + reason);
}

class PictureTeller : public ItemVisitor {
 public:
  PictureTeller(std::string_view stem, std::int32_t page) : stem_(stem), page_(page) {}

  void barcode(VData_BarCode& code) override {
    if (!trimmed(code.Value).empty()) exportPicture(code, stem_, page_);
  }

 private:
  std::string_view stem_;
  std::int32_t page_;
};

}  // namespace

std::string barcodePictureName(const BarcodePlace& place, std::string_view ending) {
  const auto named = [&](const std::string& value) {
    std::string name(place.stem);
    name += "_barcode_" + value + "_" + std::to_string(roundedMillimetres(place.left)) + "_" +
            std::to_string(roundedMillimetres(place.top));
    return name.append(ending);
  };
  if (canBeFileName(place.value)) {
    std::string name = named(utf8FromCodePage(place.value, place.codePage));
    if (fileNameOf(name).size() <= kMaxFileName) return name;
  }
  return named(standInOf(place.value));
}

std::string barcodePictureName(const VData_BarCode& code, std::string_view stem,
                               std::string_view ending) {
  return barcodePictureName(placeOf(code, stem), ending);
}

std::optional<std::string> readBarcodePicture(const std::string& name) {
  return readWholeFile(name, kMaxBarcodePicture, LinkSource::refused);
}

void writeBarcodePictures(const VData_BarCode& code, int dpi) {
  writePictures(code, dpi, sideFileStem(AppOptions.FileName));
}

void writeBarcodePicturesOf(const VDocPage& page, std::string_view stem) {
  PictureTeller teller(stem, page.Number);
  forEachLine(page, [&teller](const VDocStr& line) { line.tell(teller); });
}

}  // namespace qor
