// Pictures of barcodes.
#include "barcode/barcode_picture.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>

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

// A value longer than this may not fit into a file name with what stands around it.
constexpr std::size_t kMaxPlainValue = 120;
constexpr std::size_t kMaxNamedPart = 40;

bool canBeFileName(std::string_view value) {
  return value.size() <= kMaxPlainValue && std::none_of(value.begin(), value.end(), [](char c) {
           return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ';
         });
}

// Fowler, Noll and Vo's hash, in hexadecimal digits.
std::string hashText(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
  return digits.data();
}

// The value in the name of its picture. One that no file can bear, as a web address in a QR code,
// is told by its start and a hash.
std::string nameOfValue(const BarcodePlace& place) {
  if (canBeFileName(place.value)) return utf8FromCodePage(place.value, place.codePage);
  std::string start(place.value.substr(0, kMaxNamedPart));
  std::replace_if(
      start.begin(), start.end(),
      [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return start + "~" + hashText(place.value);
}

BarcodePlace placeOf(const VData_BarCode& code, std::string_view stem) {
  return {stem, code.Value, code.Settings->Page.BaseCodePage, code.Left, code.Top};
}

void writePictures(VData_BarCode& code, int dpi, std::string_view stem) {
  if (code.BarcodeType <= 0 || code.BarcodeType == kCodabar || dpi <= 0) return;
  const BarcodePlace picture = placeOf(code, stem);
  const Rect item = {code.Left, code.Top, code.Right, code.Bottom};
  const Rect place = {0, 0, clamped(item.width()), clamped(item.height())};
  const std::int32_t dot = kTwipsPerInch / dpi;
  saveSidePicture(item, dpi, code.Settings->Page,
                  {barcodePictureName(picture, ".jpeg"), barcodePictureName(picture, ".jpg")},
                  [&](Canvas& canvas) { drawSymbol(code, canvas, place, dot); });
}

}  // namespace

std::string barcodePictureName(const BarcodePlace& place, std::string_view ending) {
  std::string name(place.stem);
  name += "_barcode_" + nameOfValue(place) + "_" + std::to_string(roundedMillimetres(place.left)) +
          "_" + std::to_string(roundedMillimetres(place.top));
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
