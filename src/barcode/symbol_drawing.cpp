// Linear symbols: bars and their labels.
#include "barcode/symbol_drawing.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>

#include "barcode/symbol_layout.h"
#include "barcode/vbarcodecalc.h"
#include "base/errors.h"
#include "base/text.h"
#include "base/units.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::int64_t kCode128Indent = 11;  // modules

bool encodeValue(const VData_BarCode& code, VBarCodeCalc& calc) {
  switch (code.BarcodeType) {
    case kEan8: return !calc.EAN8(code.Value).empty();
    case kEan13: return !calc.EAN13(code.Value).empty();
    case kUpcA: return !calc.UPCA(code.Value).empty();
    case kUpcE: return !calc.UPCE(code.Value).empty();
    case kCode39: return !calc.Code39(code.Value, false).empty();
    case kCode128: return !calc.Code128(code.Value).empty();
    case kItf: return !calc.ITF(code.Value).empty();
    case kCode93: return !calc.Code93(code.Value).empty();
    default: return false;
  }
}

// True if there is a symbol to draw.
bool encode(const VData_BarCode& code, VBarCodeCalc& calc) {
  const bool own = hasEncoder(code.BarcodeType);
  const VData_BarCode* source = own ? &code : code.symbolSource();
  if (source == nullptr) return false;
  try {
    return encodeValue(*source, calc);
  } catch (const ConversionError& error) {
    if (!own) return false;
    throw ConversionError(toldName(code) + error.what());
  }
}

std::int64_t totalLength(const VBarCodeCalc::Texts& texts) {
  std::int64_t length = 0;
  for (const std::string& text : texts) length += static_cast<std::int64_t>(text.size());
  return length;
}

// A symbol on its way to the canvas.
class SymbolPainter {
 public:
  SymbolPainter(const VData_BarCode& code, Canvas& canvas, const SymbolLayout& layout)
      : code_(code), canvas_(canvas), layout_(layout), font_(code.Font->LogFont) {
    font_.Height = truncated(layout.textHeight);
    font_.Width = twipsFromMillimetres(code.Font->Width);
    font_.Escapement = font_.Orientation = layout.orientation * 900;
  }

  void paint(const VBarCodeCalc::Texts& patterns, const VBarCodeCalc::Texts& labels) {
    std::int64_t place = 0;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
      const std::int64_t end = place + static_cast<std::int64_t>(patterns[i].size());
      paintBars(patterns[i], place, labels[i].empty());
      if (code_.ShowValue && code_.BarcodeType != kCode128)
        paintEntryLabel(i, labels[i], place, end);
      place = end;
    }
    if (code_.ShowValue && code_.BarcodeType == kCode128) paintWholeText(labels, place);
  }

 private:
  // Neighbouring bar modules are one rectangle. Guard bars reach into the row of the text.
  void paintBars(const std::string& pattern, std::int64_t place, bool guard) {
    const bool longer = guard && code_.ShowValue && code_.ValuePosition != 0;
    const std::int32_t length =
        clamped(std::int64_t{layout_.barLength} + (longer ? layout_.guardLength : 0));
    for (auto first = pattern.find('1'); first != std::string::npos;) {
      const auto end = std::min(pattern.find('0', first), pattern.size());
      const Point from = layout_.at(place + static_cast<std::int64_t>(first));
      Point to = layout_.at(place + static_cast<std::int64_t>(end));
      std::int32_t& along = layout_.upright() ? to.y : to.x;
      along = clamped(std::int64_t{along} + length);
      canvas_.rectangle({from.x, from.y, to.x, to.y});
      first = pattern.find('1', end);
    }
  }

  void paintEntryLabel(std::size_t entry, const std::string& label, std::int64_t place,
                       std::int64_t end) {
    Point from = layout_.at(place);
    const Point to = layout_.at(end);
    if (entry != 0 || code_.BarcodeType != kEan13) {
      paintLabel(label, from, to);
      return;
    }
    // The first digit of EAN-13 has no bars: it stands before them, by the width of the labels.
    const std::int64_t width = font_.Width;
    const std::int64_t back = layout_.backward() ? width : -width;
    (layout_.upright() ? from.x : from.y) = clamped((layout_.upright() ? to.x : to.y) + back);
    paintLabel(code_.Value.substr(0, 1), from, to);
  }

  void paintLabel(const std::string& label, Point from, Point to) {
    if (label == " " || label.empty()) return;
    const double halfCharacter = realTwipsFromLabelMillimetres(code_.Font->Width) / 2;
    showText(label, alongBars(from), middle(from, to, halfCharacter));
  }

  // The text of Code 128, spread over the bars by the width of its characters.
  void paintWholeText(const VBarCodeCalc::Texts& labels, std::int64_t end) {
    std::string text;
    for (const std::string& label : labels) text += label;
    text = trimmed(text);
    if (text.empty()) return;
    const Point from = layout_.at(kCode128Indent);
    const Point to = layout_.at(end - kCode128Indent);
    const std::int64_t way =
        layout_.upright() ? std::int64_t{from.x} - to.x : std::int64_t{from.y} - to.y;
    font_.Height = layout_.textRow;
    font_.Width = clamped(way / static_cast<std::int64_t>(text.size()));
    showText(text, alongBars(from), layout_.upright() ? from.x : from.y);
  }

  // Where the text stands on the axis of the bars: before them, or half a module behind them.
  std::int32_t alongBars(Point from) const {
    const double start = layout_.upright() ? from.y : from.x;
    const double away = layout_.forward() ? 1 : -1;
    if (code_.ValuePosition == 0) return truncated(start - away * layout_.textRow);
    return truncated(start + layout_.barLength + away * layout_.module / 2);
  }

  // Where it stands on the axis of the steps: half a character before the middle of its entry.
  std::int32_t middle(Point from, Point to, double halfCharacter) const {
    const std::int64_t first = layout_.upright() ? from.x : from.y;
    const std::int64_t last = layout_.upright() ? to.x : to.y;
    const std::int64_t half = (last - first) / 2;
    const auto centre = static_cast<double>(first + half);
    return truncated(layout_.backward() ? centre + halfCharacter : centre - halfCharacter);
  }

  void showText(const std::string& text, std::int32_t alongBar, std::int32_t alongStep) {
    canvas_.setTextColor(code_.Font->Color);
    canvas_.setCharacterExtra(twipsFromMillimetres(code_.Font->LineSpacing));
    canvas_.setFont(font_);
    canvas_.moveTo(layout_.upright() ? Point{alongStep, alongBar} : Point{alongBar, alongStep});
    canvas_.textOut(codePointsFromCodePage(text, codePageOfCharset(font_.CharSet)));
  }

  const VData_BarCode& code_;
  Canvas& canvas_;
  const SymbolLayout& layout_;
  LogFont font_;
};

// A symbol in entries, quiet zones included, and where it goes.
struct PlacedSymbol {
  VBarCodeCalc::Texts patterns;
  VBarCodeCalc::Texts labels;
  std::int64_t modules = 0;
  SymbolLayout layout;
};

std::optional<PlacedSymbol> placeSymbol(const VData_BarCode& code, const Rect& rect) {
  VBarCodeCalc calc;
  if (!encode(code, calc)) return std::nullopt;
  PlacedSymbol symbol;
  calc.Layout(symbol.patterns, symbol.labels);
  symbol.modules = totalLength(symbol.patterns);
  symbol.layout = layOutSymbol(code, rect, symbol.modules);
  return symbol;
}

bool isDrawn(const VData_BarCode& code) {
  return code.BarcodeType > 0 && code.BarcodeType != kCodabar;
}

}  // namespace

std::string toldName(const VData_BarCode& code) {
  constexpr std::size_t kMostTold = 80;  // characters
  const std::string value = utf8FromCodePage(code.Value, code.Settings->Page.BaseCodePage);
  const std::string_view start = firstCharacters(value, kMostTold);
  return "barcode \"" + std::string(start) + (start.size() < value.size() ? "..." : "") + "\": ";
}

void drawSymbol(const VData_BarCode& code, Canvas& canvas, const Rect& rect, std::int32_t dot) {
  if (code.BarcodeType == kQr) return drawQr(code, canvas, rect);
  if (!isDrawn(code)) return;
  const Pen penBefore = canvas.pen();
  const Brush brushBefore = canvas.brush();
  canvas.setPen({PenStyle::none, dot, code.BarColor});
  canvas.setBrush({BrushStyle::solid, code.BarColor});
  const auto symbol = placeSymbol(code, rect);
  if (!symbol) return;
  // Labels leave the current position where it was.
  const Point position = canvas.currentPosition();
  SymbolPainter(code, canvas, symbol->layout).paint(symbol->patterns, symbol->labels);
  canvas.moveTo(position);
  canvas.setPen(penBefore);
  canvas.setBrush(brushBefore);
}

std::optional<Rect> symbolExtent(const VData_BarCode& code, const Rect& rect) {
  if (code.BarcodeType == kQr) return hasQr(code) ? std::optional(ordered(rect)) : std::nullopt;
  const auto symbol = isDrawn(code) ? placeSymbol(code, rect) : std::nullopt;
  if (!symbol) return std::nullopt;
  return symbol->layout.extent(symbol->modules);
}

}  // namespace qor
