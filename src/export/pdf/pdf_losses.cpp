// Looking for what a PDF document doesn't show.
#include "export/pdf/pdf_losses.h"

#include "base/text.h"
#include "document/page_loop.h"
#include "document/vdata.h"
#include "document/vdocpage.h"
#include "document/vdocstr.h"

namespace qor {
namespace {

constexpr std::int32_t kStroke = 20;  // of the document's lines: a point in twips

bool isPlaced(const VData_Text& text) {
  return text.Left != 0 || text.Top != 0;
}

}  // namespace

void PdfLossWatch::look(const VDocStr& line) {
  line.tell(*this);
}

void PdfLossWatch::look(const VDocPage& page) {
  forEachLine(page, [this](const VDocStr& line) { look(line); });
}

void PdfLossWatch::text(VData_Text& text) {
  const FontState& font = text.Font;
  if (trimmed(text.Text).empty()) return;
  if (placed_ && !isPlaced(text)) found_.set(kPlacedTexts);
  placed_ = placed_ || isPlaced(text);
  if (font.Width != 0 || font.WidthFactor != 1.0) found_.set(kWidths);
  if (font.LogFont.Escapement != 0) found_.set(kTurnedTexts);
}

void PdfLossWatch::shape(VData_Shape& shape) {
  const bool isLine = shape.ShapeType == kLineShape;
  if (!isLine && shape.ShapeType != kRectangleShape) found_.set(kEllipses);
  if (!isLine && shape.BrushType != kNoBrush) found_.set(kFillings);
  if (shape.LineWidth > kStroke) found_.set(kWidths);
}

}  // namespace qor
