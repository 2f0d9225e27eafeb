// Lines, rectangles and ellipses.
#include <array>

#include "document/vdata.h"
#include "platform/canvas/canvas.h"
#include "render/shape_pen.h"
#include "render/shape_picture.h"

namespace qor {
namespace {

constexpr std::int32_t kUsualLineWidth = 15;

constexpr std::array<PenStyle, 6> kPenStyles = {PenStyle::none,    PenStyle::solid,
                                                PenStyle::dash,    PenStyle::dot,
                                                PenStyle::dashDot, PenStyle::dashDotDot};

constexpr std::array<BrushStyle, 8> kBrushStyles = {
    BrushStyle::none,       BrushStyle::solid,         BrushStyle::backwardDiagonal,
    BrushStyle::cross,      BrushStyle::diagonalCross, BrushStyle::forwardDiagonal,
    BrushStyle::horizontal, BrushStyle::vertical};

// A brush type that doesn't exist leaves the brush that is there.
Brush brushOf(std::int32_t type, Color color, const Brush& current) {
  const auto place = static_cast<std::size_t>(type);
  return place < kBrushStyles.size() ? Brush{kBrushStyles[place], color} : current;
}

}  // namespace

Pen penOf(const VData_Shape& shape) {
  const auto place = static_cast<std::size_t>(shape.PenType);
  return {place < kPenStyles.size() ? kPenStyles[place] : PenStyle::solid,
          shape.LineWidth < 1 ? kUsualLineWidth : shape.LineWidth, shape.PenColor};
}

void VData_Shape::drawOutline(Canvas& canvas) const {
  canvas.setPen(penOf(*this));
  canvas.setBrush(brushOf(BrushType, BrushColor, canvas.brush()));
  const Rect rect = {Left, Top, Right, Bottom};
  switch (ShapeType) {
    case kLineShape: canvas.line({Left, Top}, {Right, Bottom}); break;
    case kRectangleShape:
    case kPictureShape: canvas.rectangle(rect); break;
    case kRoundedShape: canvas.roundRect(rect, RoundWidth, RoundHeight); break;
    case kEllipseShape: canvas.ellipse(rect); break;
    default: break;
  }
}

void VData_Shape::Draw(Canvas& canvas) {
  drawOutline(canvas);
}

void VData_Shape::DrawOnPage(Canvas& canvas) {
  drawOutline(canvas);
  if (ShapeType == kPictureShape) saveShapePicture(*this, canvas.dotsPerInch().x);
}

}  // namespace qor
