// The example of a font.
#include "windows/settings/font_example.h"

#include <QPainter>
#include <algorithm>
#include <string>

#include "base/units.h"
#include "document/vdata.h"
#include "platform/canvas/bitmap_canvas.h"
#include "windows/bitmap_image.h"

namespace qor {
namespace {

// The bytes are letters in every character set that has some.
constexpr std::string_view kSample = "  Aa 123 \xC0\xC1\xC2 \xE0\xE1\xE2";

void drawExample(Canvas& canvas, const FontState& font, int width, int height, int dpi) {
  VData_Text item(std::string(font.LogFont.faceName()).append(kSample), SharedFont(font));
  item.HasPosition = true;
  item.Right = twipsFromDots(width, dpi);
  item.Bottom = twipsFromDots(height, dpi);
  item.AlignH = item.AlignV = kAlignCentre;
  canvas.reset();
  canvas.setMapping({double(dpi), double(dpi), 0, 0});
  item.Draw(canvas);
}

}  // namespace

void FontExample::setFontState(const FontState& font) {
  font_ = font;
  update();
}

void FontExample::paintEvent(QPaintEvent*) {
  const qreal ratio = devicePixelRatioF();
  const int dpi = static_cast<int>(logicalDpiX() * ratio);
  BitmapCanvas bitmap(std::max(1, static_cast<int>(width() * ratio)),
                      std::max(1, static_cast<int>(height() * ratio)), dpi);
  const PixelView size = bitmap.pixels();
  drawExample(bitmap.canvas(), font_, size.width, size.height, dpi);
  QPainter(this).drawImage(QRectF(rect()), imageOver(bitmap.pixels()));
}

}  // namespace qor
