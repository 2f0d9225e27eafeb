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

std::string operatorsOf(const HatchTile& tile) {
  PdfContent drawing;
  drawing.setLineWidth(tile.lineWidth);
  for (const HatchTile::Line& line : tile.lines) {
    drawing.moveTo({line.x1, line.y1});
    drawing.lineTo({line.x2, line.y2});
    drawing.paint(PdfPainting::stroke);
  }
  // Some readers draw tiles with the pen of the shape that they fill.
  return std::string("[]0 d 0 J 0 j 10 M\n").append(drawing.bytes());
}

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

PdfPoint PdfCanvas::twips(Dots dots) const {
  return {realTwipsFromDots(dots.x, space_.dotsPerInch().x),
          realTwipsFromDots(dots.y, space_.dotsPerInch().y)};
}

PdfPoint PdfCanvas::onPage(Dots dots) const {
  const PdfPoint place = twips(dots);
  return {place.x, -place.y};
}

PdfBox PdfCanvas::boxOnPage(const DotBox& box) const {
  const PdfPoint corner = onPage({box.left, box.bottom});
  const PdfPoint opposite = onPage({box.right, box.top});
  return {corner.x, corner.y, opposite.x - corner.x, opposite.y - corner.y};
}

void PdfCanvas::setClip(const Rect& dots) {
  clearClip();
  const Point size = space_.size();
  if (dots.left <= 0 && dots.top <= 0 && dots.right >= size.x && dots.bottom >= size.y) return;
  content().save();
  content().clip(
      boxOnPage({double(dots.left), double(dots.top), double(dots.right), double(dots.bottom)}));
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
  const double side = tile.side;
  // Tiles overlap by a dot, or readers show where they meet.
  std::string entries = "/BBox[" + pdfNumbers({-1, -1, side + 1, side + 1}) + "]/XStep " +
                        pdfNumbers({side}) + "/YStep " + pdfNumbers({side}) + "/Matrix[";
  appendNumber(entries, pointsPerDot(space_.dotsPerInch().x), 6);
  appendNumber(entries += " 0 0 ", -pointsPerDot(space_.dotsPerInch().y), 6);
  entries += " 0 " + pdfNumbers({pages_.pageHeight()}) + "]";
  return name = pages_.addPattern(entries, operatorsOf(tile));
}

void PdfCanvas::line(Point start, Point end) {
  Dots from = space_.dots(start.x, start.y);
  Dots to = space_.dots(end.x, end.y);
  if (!space_.cutLine(from, to) || !usePen()) return;
  const bool straight = start.x == end.x || start.y == end.y;
  content().setLineCap(straight ? PdfCap::butt : PdfCap::round);
  content().moveTo(onPage(from));
  content().lineTo(onPage(to));
  content().paint(PdfPainting::stroke);
}

void PdfCanvas::rectangle(const Rect& rect) {
  const PdfBox box = boxOnPage(space_.box(rect));
  // Readers show a line where there is nothing to be filled.
  if (useBrush() && box.width > 0 && box.height > 0) content().fillRectangle(box);
  if (!usePen()) return;
  // From the upper left corner on, as bitmaps do it: dashes begin there.
  content().rectangle({box.x, box.y + box.height, box.width, -box.height});
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
  content().moveTo(onPage(bends[first].start));
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
  if (withEdge) content().lineTo(onPage(bend.start));
  content().curveTo(onPage(toCorner(bend.start)), onPage(toCorner(bend.end)), onPage(bend.end));
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
  pages_.showImage(*image, boxOnPage({corner.x, corner.y, opposite.x, opposite.y}));
}

}  // namespace qor
