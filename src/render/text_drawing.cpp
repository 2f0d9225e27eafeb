// Texts: on their line, at a place of their own, or in a box.
#include "base/units.h"
#include "document/vdata.h"
#include "platform/canvas/canvas.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

Align alignOf(std::int32_t number) {
  return number == kAlignCentre ? Align::centre : number == kAlignEnd ? Align::end : Align::start;
}

// Selects the item's font. With a width factor and no width of its own, the width follows from the
// average width of the natural font.
LogFont selectFont(const FontState& font, Canvas& canvas) {
  LogFont record = font.LogFont;
  record.Height = twipsFromPoints(-font.Height);
  record.Width = 0;
  if (font.Width != 0) {
    record.Width = twipsFromPoints(font.Width);
    if (font.WidthFactor != 1.0) record.Width = truncated(record.Width * font.WidthFactor);
  }
  canvas.setFont(record);
  if (font.Width == 0 && font.WidthFactor != 1.0) {
    record.Width = truncated(canvas.textMetrics().averageWidth * font.WidthFactor);
    canvas.setFont(record);
  }
  return record;
}

}  // namespace

void VData_Text::Draw(Canvas& canvas) {
  canvas.setTextColor(Font->Color);
  selectFont(*Font, canvas);
  const TextMetrics& metrics = canvas.textMetrics();
  CharWidth = metrics.averageWidth;
  LineHeight = truncated(metrics.height + metrics.externalLeading +
                         realTwipsFromLineSpacing(Font->LineSpacing));
  canvas.setCharacterExtra(twipsFromMillimetres(Font->CharSpacing));
  if (Text.empty()) return;

  if (inBox()) {
    // Text in boxes is read in the code page of its font's character set, not in the report's.
    const int codePage = codePageOfCharset(Font->LogFont.CharSet);
    canvas.drawText(codePointsFromCodePage(Text, codePage), {Left, Top, Right, Bottom},
                    alignOf(AlignH), alignOf(AlignV));
    return;
  }
  BuildWideText();
  if (!HasPosition) {
    canvas.textOut(WideText);
    return;
  }
  const Point flow = canvas.currentPosition();
  canvas.moveTo({Left, Top});
  canvas.textOut(WideText);
  canvas.moveTo(flow);
}

}  // namespace qor
