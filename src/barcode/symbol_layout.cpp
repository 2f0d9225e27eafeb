// Sizes and places of symbols.
#include "barcode/symbol_layout.h"

#include <algorithm>
#include <cmath>

#include "base/units.h"
#include "document/vdata.h"

namespace qor {
namespace {

constexpr int kGuardModules = 5;

double moduleWidth(const VData_BarCode& code, std::int64_t span, std::int64_t modules) {
  if (code.ManualWidth) return code.LineWidth;
  if (!code.SizeSet) return double(code.SizeFactor) * kBasicModule;
  const std::int64_t whole = span / modules;
  return static_cast<double>(whole);
}

// A symbol of a width of its own stands in the middle of its box, if it fits.
std::int32_t offsetOf(const VData_BarCode& code, std::int64_t span, double width) {
  const double left = static_cast<double>(span) - width;
  return isFitted(code) || left <= 0 ? 0 : truncated(left / 2);
}

double textHeight(const VData_BarCode& code, double module) {
  if (!code.ShowValue) return 0;
  if (!code.SizeSet) return double(code.SizeFactor) * kBasicTextHeight;
  if (code.ValueFont == 0) return module / kBasicModule * kBasicTextHeight;
  // Millimetres, where the height of a text item is points: reports size their captions by it.
  return realTwipsFromMillimetres(code.Font->Height);
}

// The corner of the rectangle where the symbol starts, moved in by the offset along the steps and
// by the inset along the bars.
Point startOf(int orientation, const Rect& rect, std::int32_t offset, double inset) {
  switch (orientation) {
    case 1: return {truncated(rect.left + inset), clamped(std::int64_t{rect.bottom} - offset)};
    case 2: return {clamped(std::int64_t{rect.right} - offset), truncated(rect.bottom - inset)};
    case 3: return {truncated(rect.right - inset), clamped(std::int64_t{rect.top} + offset)};
    default: return {clamped(std::int64_t{rect.left} + offset), truncated(rect.top + inset)};
  }
}

// Guard bars reach into the row of the text, at its side of the bars.
double textEdgeOf(const VData_BarCode& code, const SymbolLayout& layout, double direction) {
  if (!code.ShowValue) return 0;
  if (code.ValuePosition == 0) return -direction * layout.textRow;
  const double row = std::abs(layout.textHeight) + std::abs(layout.module) / 2;
  return layout.barLength + direction * std::max(row, std::abs(layout.module) * kGuardModules);
}

}  // namespace

bool isFitted(const VData_BarCode& code) {
  return !code.ManualWidth && code.SizeSet;
}

Point SymbolLayout::at(std::int64_t modules) const {
  const std::int64_t way = modules * step;
  return upright() ? Point{clamped(start.x + way), start.y}
                   : Point{start.x, clamped(start.y + way)};
}

Rect ordered(const Rect& rect) {
  return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom),
          std::max(rect.left, rect.right), std::max(rect.top, rect.bottom)};
}

Rect SymbolLayout::extent(std::int64_t modules) const {
  const Point end = at(modules);
  const auto [first, last] = std::minmax({0, barLength, textEdge});
  if (upright()) {
    return ordered({start.x, clamped(std::int64_t{start.y} + first), end.x,
                    clamped(std::int64_t{start.y} + last)});
  }
  return ordered({clamped(std::int64_t{start.x} + first), start.y,
                  clamped(std::int64_t{start.x} + last), end.y});
}

SymbolLayout layOutSymbol(const VData_BarCode& code, const Rect& rect, std::int64_t modules) {
  SymbolLayout layout;
  layout.orientation = code.Orientation >= 0 && code.Orientation <= 3 ? code.Orientation : 0;
  const std::int64_t span = layout.upright() ? rect.width() : rect.height();
  auto room = static_cast<double>(layout.upright() ? rect.height() : rect.width());
  double inset = 0;

  layout.module = moduleWidth(code, span, modules);
  layout.textHeight = textHeight(code, layout.module);
  layout.textRow = truncated(layout.textHeight);
  if (code.ManualHeight) {
    room -= code.MarginTop + code.MarginBottom;
    inset += code.MarginTop;
  }
  if (code.ShowValue) {
    room -= layout.textRow;
    if (code.ValuePosition == 0) inset += layout.textRow;
  }
  const double direction = layout.forward() ? 1 : -1;
  const bool backward = layout.orientation == 1 || layout.orientation == 2;
  const std::int32_t step = truncated(layout.module);
  layout.barLength = truncated(direction * room);
  layout.guardLength = truncated(direction * layout.module * kGuardModules);
  layout.step = backward ? -step : step;
  layout.textEdge = truncated(textEdgeOf(code, layout, direction));
  const double width = layout.module * static_cast<double>(modules);
  layout.start = startOf(layout.orientation, rect, offsetOf(code, span, width), inset);
  return layout;
}

}  // namespace qor
