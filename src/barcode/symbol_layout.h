// Sizes and places of a symbol in its rectangle: arithmetic only. All lengths are twips.
#pragma once

#include <cstdint>

#include "platform/canvas/canvas.h"

namespace qor {

class VData_BarCode;

// 0.33 mm and 2.75 mm: module and text height of a symbol at 100 percent.
inline constexpr double kBasicModule = 18.70866139824;
inline constexpr double kBasicTextHeight = 155.905511652;

// Modules follow each other along the step axis, bars run along the bar axis.
struct SymbolLayout {
  int orientation = 0;  // 0 left to right; 1, 2, 3 turned by that many quarter turns
  double module = 0;
  double textHeight = 0;
  std::int32_t textRow = 0;      // textHeight cut, 0 where no text is shown
  Point start;                   // where the first module's bar starts
  std::int32_t step = 0;         // to the next module, signed
  std::int32_t barLength = 0;    // signed
  std::int32_t guardLength = 0;  // how much longer guard bars are, signed
  std::int32_t textEdge = 0;     // the far edge of the text's row, from the start along the bars

  bool upright() const { return orientation == 0 || orientation == 2; }  // bars run up or down
  bool forward() const { return orientation == 0 || orientation == 1; }  // bars run down or right

  bool backward() const { return orientation == 1 || orientation == 2; }  // steps run left or up

  // The place of a module, counted from the first one.
  Point at(std::int64_t modules) const;

  // What a symbol of that many modules covers: its bars and the row of its text.
  Rect extent(std::int64_t modules) const;
};

// The rectangle with its edges in order.
Rect ordered(const Rect& rect);

// True if the modules are made to fill the rectangle.
bool isFitted(const VData_BarCode& code);

// The layout of a symbol of `modules` modules, quiet zones included, in the rectangle.
SymbolLayout layOutSymbol(const VData_BarCode& code, const Rect& rect, std::int64_t modules);

}  // namespace qor
