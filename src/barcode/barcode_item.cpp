// The barcode item: its type, its value, its drawing.
#include <algorithm>
#include <array>

#include "barcode/barcode_picture.h"
#include "barcode/symbol_drawing.h"
#include "barcode/vbarcodecalc.h"
#include "base/errors.h"
#include "base/text.h"
#include "base/units.h"
#include "document/vdata.h"
#include "platform/canvas/canvas.h"

namespace qor {
namespace {

// The numbers that reports use are not the types: they leave one out behind 3.
struct BarcodeName {
  std::string_view name;
  std::string_view number;
  int type;
};

constexpr std::array<BarcodeName, 12> kBarcodeNames = {{{"EAN_8", "1", kEan8},
                                                        {"EAN_13", "2", kEan13},
                                                        {"UPCA", "3", kUpcA},
                                                        {"UPCE", "5", kUpcE},
                                                        {"39", "6", kCode39},
                                                        {"128", "7", kCode128},
                                                        {"CodeBar", "8", kCodabar},
                                                        {"InterLeave", "9", kInterleave},
                                                        {"FullASCII", "10", kFullAscii},
                                                        {"ITF", "ITF", kItf},
                                                        {"93", "11", kCode93},
                                                        {"KAREKOD", "12", kQr}}};

// Digits without the check digit; 0 for symbologies of any length.
std::size_t expectedLength(int type, std::size_t held) {
  switch (type) {
    case kEan8:
    case kUpcE: return 7;
    case kEan13: return 12;
    case kUpcA: return 11;
    default: return held;
  }
}

bool isDigitsOnly(int type) {
  return type >= kEan8 && type <= kUpcE;
}

bool passesCheck(int type, std::string_view text) {
  switch (type) {
    case kEan8:
    case kEan13:
    case kUpcA:
    case kUpcE:
    case kItf: return VBarCodeCalc::CheckDigits(text);
    case kCode39: return VBarCodeCalc::CheckCode39(text);
    case kCode128: return !text.empty();
    case kCodabar: return VBarCodeCalc::CheckCodaBar(text);
    case kCode93: return VBarCodeCalc::CheckCode93(text);
    default: return true;
  }
}

// What stands for a value that failed its check.
std::string failedValue(int type, std::size_t length) {
  std::string value = type == kCodabar || type == kItf ? "0" : "ERROR";
  if (isDigitsOnly(type)) value.assign(length, '0');
  return value;
}

}  // namespace

void VData_BarCode::SetType(std::string_view text) {
  const auto found = std::find_if(
      kBarcodeNames.begin(), kBarcodeNames.end(),
      [text](const BarcodeName& row) { return row.name == text || row.number == text; });
  BarcodeType = found == kBarcodeNames.end() ? int{kInvalid} : found->type;
}

bool VData_BarCode::SetValue(std::string_view given) {
  const std::string_view text = trimmed(given);
  const std::size_t expected = expectedLength(BarcodeType, Value.size());
  HasValue = true;
  if (isDigitsOnly(BarcodeType) && text.size() != expected && text.size() != expected + 1) {
    BarcodeType = kInvalid;
    Value = given;
    return false;
  }
  if (!passesCheck(BarcodeType, text)) {
    Value = failedValue(BarcodeType, text.size());
    BarcodeType = kInvalid;
    return false;
  }
  // A check digit in the text is thrown away: it is worked out anew.
  const bool holdsCheck = expected != 0 && text.size() == expected + 1;
  Value = text.substr(0, text.size() - (holdsCheck ? 1 : 0));
  return true;
}

void VData_BarCode::follow(const VData_BarCode* before) {
  if (hasEncoder(BarcodeType) && !trimmed(Value).empty()) {
    symbol_source_ = this;
  } else if (before != nullptr) {
    symbol_source_ = before->symbolSource();
  }
}

void VData_BarCode::Draw(Canvas& canvas) {
  if (trimmed(Value).empty()) return;
  const int dpi = canvas.dotsPerInch().x;
  drawSymbol(*this, canvas, {Left, Top, Right, Bottom}, wholeTwipsPerDot(std::max(1, dpi)));
  try {
    writeBarcodePictures(*this, dpi);
  } catch (const PictureError&) {
    // What is drawn needs no picture; an export that does tells of it.
  }
}

}  // namespace qor
