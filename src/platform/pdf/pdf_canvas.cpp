// Shapes and pictures on paper.
#include "platform/pdf/pdf_canvas.h"

#include <array>

#include "base/units.h"
#include "platform/canvas/pen_patterns.h"
#include "platform/pictures/picture_store.h"

namespace qor {
namespace {

// How far the control points of a curve for a quarter of an ellipse lie from its ends, in radii:
// 4 (sqrt(2) - 1) / 3.
constexpr double kQuarter = 0.5522847498;

}  // namespace

PdfColor PdfCanvas::pdfColor(Color color) {
  return {redOf(color) / 255.0, greenOf(color) / 255.0, blueOf(color) / 255.0};
}

PdfCanvas::PdfCanvas(PdfPages& pages, Point size, Point dotsPerInch)
    : pages_(pages), codes_(pages.faces()), space_(size, dotsPerInch) {
}

void PdfCanvas::beginPage() {
  constexpr double kPointsPerTwip = pointsFromTwips(1);
  pages_.beginPage();
  content().transform(kPointsPerTwip, 0, 0, kPointsPerTwip, 0, pages_.pageHeight());
  clipped_ = false;
}

void PdfCanvas::endPage() {
  clearClip();
  pages_.endPage();
}

Dots PdfCanvas::onPage(Dots dots) const {
  return {realTwipsFromDots(dots.x, space_.dotsPerInch().x),
          -realTwipsFromDots(dots.y, space_.dotsPerInch().y)};
}

Dots PdfCanvas::twipsPerUnit() const {
  const Dots dots = space_.dotsPerUnit();
  return {realTwipsFromDots(dots.x, space_.dotsPerInch().x),
          realTwipsFromDots(dots.y, space_.dotsPerInch().y)};
}

PdfCanvas::PageBox PdfCanvas::boxOnPage(const DotBox& box) const {
  const Dots corner = onPage({box.left, box.bottom});
  const Dots opposite = onPage({box.right, box.top});
  return {corner.x, corner.y, opposite.x - corner.x, opposite.y - corner.y};
}

void PdfCanvas::setClip(const Rect& dots) {
  clearClip();
  const Point size = space_.size();
  if (dots.left <= 0 && dots.top <= 0 && dots.right >= size.x && dots.bottom >= size.y) return;
  const PageBox box = boxOnPage(
      DotBox{double(dots.left), double(dots.top), double(dots.right), double(dots.bottom)});
  content().save();
  content().clip(box.x, box.y, box.width, box.height);
  clipped_ = true;
}

void PdfCanvas::clearClip() {
  if (clipped_) content().restore();
  clipped_ = false;
}

// False where there is no pen.
bool PdfCanvas::usePen() {
  if (pen().style == PenStyle::none) return false;
  const double perDot = realTwipsFromDots(1, space_.dotsPerInch().x);
  const double width = space_.penWidth(pen());
  std::vector<double> dashes = dashesOf(pen().style, width, space_.mappedDpi());
  for (double& length : dashes) length *= perDot;
  content().setStrokeColor(pdfColor(pen().color));
  content().setLineWidth(width * perDot);
  content().setLineCap(PdfCap::butt);
  content().setDash(dashes);
  return true;
}

// False where there is no brush.
bool PdfCanvas::useBrush() {
  const auto [style, color] = brush();
  if (style == BrushStyle::none) return false;
  if (style == BrushStyle::solid) {
    content().setFillColor(pdfColor(color));
  } else {
    content().setFillPattern(hatchName(style), pdfColor(color));
  }
  return true;
}

std::string PdfCanvas::hatchName(BrushStyle style) {
  const HatchTile tile = hatchTile(style, space_.mappedDpi());
  std::string& name = hatches_[{style, tile.side}];
  if (!name.empty()) return name;
  // Tiles overlap by a dot, or readers show where they meet.
  const std::string beyond = std::to_string(tile.side + 1);
  std::string entries = "/BBox[-1 -1 " + beyond + " " + beyond + "]/XStep " +
                        std::to_string(tile.side) + "/YStep " + std::to_string(tile.side) +
                        "/Matrix[" + std::to_string(pointsPerDot(space_.dotsPerInch().x)) +
                        " 0 0 " + std::to_string(-pointsPerDot(space_.dotsPerInch().y)) + " 0 ";
  appendNumber(entries, pages_.pageHeight());
  // Some readers draw tiles with the pen of the shape that they fill.
  std::string operators = "[]0 d 0 J 0 j 10 M\n";
  PdfContent drawing;
  drawing.setLineWidth(tile.lineWidth);
  for (const HatchTile::Line& line : tile.lines) {
    drawing.moveTo(line.x1, line.y1);
    drawing.lineTo(line.x2, line.y2);
    drawing.paint(PdfPainting::stroke);
  }
  return name = pages_.addPattern(entries + "]", operators.append(drawing.bytes()));
}

void PdfCanvas::line(Point start, Point end) {
  Dots from = space_.dots(start.x, start.y);
  Dots to = space_.dots(end.x, end.y);
  if (!space_.cutLine(from, to) || !usePen()) return;
  const bool straight = start.x == end.x || start.y == end.y;
  content().setLineCap(straight ? PdfCap::butt : PdfCap::round);
  from = onPage(from);
  to = onPage(to);
  content().moveTo(from.x, from.y);
  content().lineTo(to.x, to.y);
  content().paint(PdfPainting::stroke);
}

void PdfCanvas::rectangle(const Rect& rect) {
  const PageBox box = boxOnPage(space_.box(rect));
  // Readers show a line where there is nothing to be filled.
  if (useBrush() && box.width > 0 && box.height > 0)
    content().fillRectangle(box.x, box.y, box.width, box.height);
  if (!usePen()) return;
  // From the upper left corner on, as bitmaps do it: dashes begin there.
  content().rectangle(box.x, box.y + box.height, box.width, -box.height);
  content().paint(PdfPainting::stroke);
}

// Clockwise, each corner with the straight edge before it, from the given one on: dashes begin
// where those of bitmaps do.
void PdfCanvas::paintRound(const DotBox& box, Dots radii, Corner first) {
  const bool filled = useBrush();
  const bool drawn = usePen();
  if (!filled && !drawn) return;
  if (filled) content().prepareFill();
  const auto [left, top, right, bottom] = box;
  const auto [rx, ry] = radii;
  const std::array<Bend, 4> bends = {{{{right - rx, top}, {right, top}, {right, top + ry}},
                                      {{right, bottom - ry}, {right, bottom}, {right - rx, bottom}},
                                      {{left + rx, bottom}, {left, bottom}, {left, bottom - ry}},
                                      {{left, top + ry}, {left, top}, {left + rx, top}}}};
  const Dots start = onPage(bends[first].start);
  content().moveTo(start.x, start.y);
  for (std::size_t i = 0; i < bends.size(); ++i) addBend(bends[(first + i) % bends.size()], i > 0);
  content().closePath();
  content().paint(filled && drawn ? PdfPainting::fillAndStroke
                  : filled        ? PdfPainting::fill
                                  : PdfPainting::stroke);
}

void PdfCanvas::addBend(const Bend& bend, bool withEdge) {
  const auto toCorner = [&bend](Dots end) {
    return Dots{end.x + kQuarter * (bend.corner.x - end.x),
                end.y + kQuarter * (bend.corner.y - end.y)};
  };
  const Dots start = onPage(bend.start);
  if (withEdge) content().lineTo(start.x, start.y);
  const Dots control1 = onPage(toCorner(bend.start));
  const Dots control2 = onPage(toCorner(bend.end));
  const Dots end = onPage(bend.end);
  content().curveTo(control1.x, control1.y, control2.x, control2.y, end.x, end.y);
}

void PdfCanvas::roundRect(const Rect& rect, std::int32_t width, std::int32_t height) {
  const DotBox box = space_.box(rect);
  const Dots radii = space_.cornerRadii(box, width, height);
  if (radii.x == 0) return rectangle(rect);
  paintRound(box, radii, kUpperRight);
}

void PdfCanvas::ellipse(const Rect& rect) {
  const DotBox box = space_.curveBox(rect);
  if (box.width() <= 0 || box.height() <= 0) return;
  paintRound(box, {box.width() / 2, box.height() / 2}, kLowerRight);
}

void PdfCanvas::drawPicture(const StoredPicture& picture, const Rect& rect) {
  if (rect.width() <= 0 || rect.height() <= 0) return;
  const Dots corner = space_.dots(rect.left, rect.top);
  const Dots opposite = space_.dots(rect.right, rect.bottom);
  const bool seen =
      corner.x < space_.size().x && corner.y < space_.size().y && opposite.x > 0 && opposite.y > 0;
  const PdfImage* image = seen ? pages_.loadImage(picture) : nullptr;
  if (image == nullptr) return;
  const PageBox box = boxOnPage(DotBox{corner.x, corner.y, opposite.x, opposite.y});
  pages_.showImage(*image, box.x, box.y, box.width, box.height);
}

}  // namespace qor
