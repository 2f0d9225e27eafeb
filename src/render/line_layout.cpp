// Layout of texts.
#include "render/line_layout.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "barcode/symbol_drawing.h"
#include "base/errors.h"
#include "document/document_letters.h"
#include "document/item_texts.h"
#include "document/vdata.h"
#include "document/vdocstr.h"
#include "render/silent_canvas.h"

namespace qor {
namespace {

// Takes down where characters are painted.
class StretchCanvas : public SilentCanvas {
 public:
  explicit StretchCanvas(std::vector<TextStretch>& stretches) : stretches_(stretches) {}

  // The place of the next character in its line.
  void countFrom(std::size_t character) { next_ = character; }

 protected:
  void paintText(const TextRun& run) override {
    TextStretch& stretch = stretches_.emplace_back();
    stretch.first = next_;
    stretch.x = run.x;
    stretch.y = run.y;
    stretch.angle = run.angle;
    stretch.height = run.font.metrics().height;
    stretch.edges.reserve(run.glyphs.size() + 1);
    for (const PlacedGlyph& glyph : run.glyphs) stretch.edges.push_back(glyph.distance);
    stretch.edges.push_back(run.length);
    next_ += run.glyphs.size();
  }

 private:
  std::vector<TextStretch>& stretches_;
  std::size_t next_ = 0;
};

// What the symbol covers; where it has none, the place that it would have.
Rect placeOf(const VData_BarCode& code) {
  const Rect given = {code.Left, code.Top, code.Right, code.Bottom};
  try {
    return symbolExtent(code, given).value_or(given);
  } catch (const ConversionError&) {
    return given;
  }
}

// A barcode as a text of that many characters over all of its symbol.
TextStretch stretchOver(const VData_BarCode& code, std::size_t first, std::size_t count) {
  const Rect place = placeOf(code);
  TextStretch stretch;
  stretch.first = first;
  stretch.x = std::min(place.left, place.right);
  stretch.y = std::min(place.top, place.bottom);
  stretch.height = std::abs(static_cast<double>(place.height()));
  const double width = std::abs(static_cast<double>(place.width()));
  for (std::size_t i = 0; i <= count; ++i)
    stretch.edges.push_back(width * static_cast<double>(i) / static_cast<double>(count));
  return stretch;
}

class LineLayout : public ItemVisitor {
 public:
  LineLayout(bool placed, const DocumentLetters& letters)
      : placed_(placed), letters_(letters), canvas_(line.stretches) {}

  void startAt(Point corner) { canvas_.moveTo(corner); }

  void text(VData_Text& item) override {
    if (item.HasPosition != placed_) return;
    canvas_.countFrom(line.text.size());
    appendText(item, letters_, line.text);
    item.Draw(canvas_);
  }

  void barcode(VData_BarCode& item) override {
    if (!placed_) return;
    const std::size_t first = line.text.size();
    letters_.append(item.Value, line.text);
    line.stretches.push_back(stretchOver(item, first, line.text.size() - first));
  }

  TextLine line;

 private:
  bool placed_;  // whether texts with places of their own are wanted, or the others
  const DocumentLetters& letters_;
  StretchCanvas canvas_;
};

}  // namespace

TextLine layOutLine(const VDocStr& line, Point corner, const DocumentLetters& letters) {
  LineLayout layout(false, letters);
  layout.startAt(corner);
  line.tell(layout);
  return std::move(layout.line);
}

TextLine layOutRow(std::span<VData* const> items, const DocumentLetters& letters) {
  LineLayout layout(true, letters);
  for (VData* item : items) {
    if (item != items.front()) layout.line.text += kBetweenTexts;
    item->tell(layout);
  }
  return std::move(layout.line);
}

}  // namespace qor
