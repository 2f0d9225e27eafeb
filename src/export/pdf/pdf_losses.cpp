// Looking for what a PDF document doesn't show.
#include "export/pdf/pdf_losses.h"

#include "base/text.h"
#include "document/page_loop.h"
#include "document/vdata.h"
#include "document/vdocpage.h"
#include "document/vdocstr.h"
#include "language/language.h"

namespace qor {
namespace {

constexpr std::int32_t kStroke = 20;  // of the document's lines: a point in twips

bool changesSpacing(const FontState& font) {
  return font.Width != 0 || font.WidthFactor != 1.0 || font.CharSpacing != 0 ||
         font.LineSpacing != 0;
}

bool isDashed(std::int32_t pen) {
  return pen >= kDashPen && pen <= kDashDotDotPen;
}

}  // namespace

std::string pdfNotice(PdfLosses losses) {
  if (losses.none()) return {};
  const ExportTexts& texts = exportTexts();
  std::string notice;
  for (std::size_t i = 0; i < losses.size(); ++i) {
    if (losses.test(i))
      notice.append(notice.empty() ? texts.pdfNoticeStart : ", ").append(texts.pdfLosses[i]);
  }
  return notice;
}

void PdfLossWatch::look(const VDocStr& line) {
  line.tell(*this);
}

void PdfLossWatch::look(const VDocPage& page) {
  forEachLine(page, [this](const VDocStr& line) { look(line); });
}

void PdfLossWatch::text(VData_Text& text) {
  if (text.Text.empty()) return;
  const FontState& font = *text.Font;
  placed_ = placed_ || text.offCorner();
  if (font.LogFont.Underline != 0 || font.LogFont.StrikeOut != 0) found_.set(kUnderlines);
  PdfLosses losses;
  losses.set(kPlacedTexts, placed_ && !text.offCorner());
  losses.set(kWidths, changesSpacing(font));
  losses.set(kTurnedTexts, font.LogFont.Escapement != 0);
  // Of blanks only a line through them is seen.
  if (losses.any() && !trimmed(text.Text).empty()) found_ |= losses;
}

void PdfLossWatch::shape(VData_Shape& shape) {
  const bool isLine = shape.ShapeType == kLineShape;
  if (!isLine && shape.ShapeType != kRectangleShape) found_.set(kEllipses);
  if (!isLine && shape.BrushType != kNoBrush) found_.set(kFillings);
  if (shape.LineWidth > kStroke) found_.set(kWidths);
  if (shape.PenType == kNoPen || (isLine && isDashed(shape.PenType))) found_.set(kPens);
}

}  // namespace qor
