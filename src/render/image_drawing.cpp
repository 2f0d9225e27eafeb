// Images: the picture, or a frame with the reason why there is none.
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/canvas/canvas.h"
#include "platform/pictures/picture_store.h"
#include "platform/system/text_encoding.h"
#include "render/image_placing.h"
#include "render/path_ellipsis.h"

namespace qor {
namespace {

constexpr std::int32_t kErrorTextHeight = 300;  // twips, of the cell
constexpr std::size_t kMaxErrorText = 1024;     // bytes; no sheet shows more

LogFont errorFont() {
  LogFont font;
  font.Height = kErrorTextHeight;
  font.setFaceName("Times New Roman");
  return font;
}

}  // namespace

void VData_Image::drawErrorText(Canvas& canvas) {
  const Rect rect = {Left, Top, Right, Bottom};
  const Pen before = canvas.pen();
  canvas.setPen({PenStyle::solid, 1, kBlack});
  canvas.rectangle(rect);
  canvas.setPen(before);
  canvas.setTextColor(kBlack);
  canvas.setCharacterExtra(0);
  canvas.setFont(errorFont());
  const std::string_view start = std::string_view(ErrorText).substr(0, kMaxErrorText);
  const std::u32string text = codePointsFromCodePage(start, Settings->Page.BaseCodePage);
  const std::u32string shown =
      withPathEllipsis(text, static_cast<double>(rect.width()), [&canvas](char32_t c) {
        return canvas.textLength({&c, 1});
      });
  canvas.drawText(shown, rect, Align::centre, Align::centre);
}

// Draws the picture by the stretch mode, or what stands for it. True where its frame may follow.
bool VData_Image::drawPicture(Canvas& canvas, bool onPage) {
  Load();
  if (!Bitmap) {
    drawErrorText(canvas);
    return false;
  }
  const auto place =
      placeImage(ImageStretch, {Left, Top, Right, Bottom}, Bitmap->width(), Bitmap->height());
  if (!place || (ImageStretch == kTwipPerPixelStretch && !onPage)) return true;
  if (ImageStretch == kNaturalStretch) {
    Right = place->right;
    Bottom = place->bottom;
  }
  canvas.drawPicture(*Bitmap, *place);
  return true;
}

void VData_Image::Draw(Canvas& canvas) {
  if (drawPicture(canvas, false) && ShapeType == kRectangleShape) VData_Shape::Draw(canvas);
}

void VData_Image::DrawOnPage(Canvas& canvas) {
  if (drawPicture(canvas, true) && ShapeType == kRectangleShape) VData_Shape::DrawOnPage(canvas);
}

}  // namespace qor
