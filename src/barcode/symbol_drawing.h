// Drawing symbols.
#pragma once

#include <cstdint>

#include "platform/canvas.h"

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

// Draws the symbol in the rectangle; `dot` is the width of a device dot in twips. Types without an
// encoder show what the last symbol left. Leaves the width of its modules and the font of its
// labels in the item. Throws ConversionError for a UPC-E that can't be compressed.
void drawSymbol(VData_BarCode& code, Canvas& canvas, const Rect& rect, std::int32_t dot);

// Draws the value as a QR code stretched to the rectangle.
void drawQr(const VData_BarCode& code, Canvas& canvas, const Rect& rect);

}  // namespace qor
