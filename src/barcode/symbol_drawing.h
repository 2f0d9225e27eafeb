// Drawing symbols.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/canvas/canvas.h"

namespace qor {

class VData_BarCode;

enum BarcodeKind {
  kInvalid = -1,
  kEan8 = 1,
  kEan13,
  kUpcA,
  kUpcE,
  kCode39,
  kCode128,
  kCodabar,
  kInterleave,
  kFullAscii,
  kItf,
  kCode93,
  kQr
};

// True for the types whose symbols are made of their values.
constexpr bool hasEncoder(int type) {
  return (type >= kEan8 && type <= kCode128) || type == kItf || type == kCode93;
}

// How messages start that are about a barcode: with its value, of which they show the start.
std::string toldName(const VData_BarCode& code);

// Draws the symbol in the rectangle, as often as one likes alike; `dot` is the width of a device
// dot in twips. Types without an encoder show the symbol of the item's source. Throws
// ConversionError, which tells the value, for a UPC-E that can't be compressed.
void drawSymbol(const VData_BarCode& code, Canvas& canvas, const Rect& rect, std::int32_t dot);

// What a symbol drawn in the rectangle covers, quiet zones and the row of its text included: edges
// in order. Without a width where its bars have none; nothing where it has no symbol. Throws as
// drawSymbol.
std::optional<Rect> symbolExtent(const VData_BarCode& code, const Rect& rect);

// Draws the value as a QR code stretched to the rectangle; mirrored where that runs backward.
void drawQr(const VData_BarCode& code, Canvas& canvas, const Rect& rect);

// False where the value is more than a QR code holds: it is then drawn as an empty field.
bool hasQr(const VData_BarCode& code);

}  // namespace qor
