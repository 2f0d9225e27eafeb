// Pages on sheets.
#include "window_model/page_view.h"

#include <algorithm>
#include <cmath>

#include "base/units.h"
#include "document/code_page.h"
#include "document/side_picture.h"
#include "document/vdocpage.h"
#include "platform/canvas/bitmap_canvas.h"
#include "render/page_walk.h"
#include "window_model/page_mapping.h"

namespace qor {
namespace {

constexpr Color kShadow = 0x5C6D76;
constexpr Color kUnprintable = 0xF0F0F0;
constexpr Color kMargins = 0xFF0000;
constexpr std::int32_t kShadowDepth = 7;  // pixels at 100 percent

std::uint32_t brightness(Color color) {
  return (299 * redOf(color) + 587 * greenOf(color) + 114 * blueOf(color)) / 1000;
}

// The colour of a shadow, or, on a dark ground, half of what the ground has.
Color shadowOn(Color ground) {
  const bool isDarker = brightness(kShadow) * 5 <= brightness(ground) * 4;
  return isDarker ? kShadow : ground >> 1 & 0x7F7F7FU;
}

Rect movedBy(const Point& corner, const Rect& dots) {
  return {dots.left - corner.x, dots.top - corner.y, dots.right - corner.x, dots.bottom - corner.y};
}

// Fields of the sheet, told in pixels of the view. An outline is one dot wide and lies inside of
// the right and bottom edges. Whatever a dot is, it is drawn as on a screen of the common
// resolution.
class SheetPainter {
 public:
  SheetPainter(Canvas& canvas, const ViewPart& part) : canvas_(canvas), part_(part) {
    canvas.setMapping({kPictureDpi, kPictureDpi, -part.corner.x, -part.corner.y});
  }

  void fill(const Rect& pixels, Color color) {
    draw(pixels, {PenStyle::none}, {BrushStyle::solid, color}, 0);
  }

  // Leaves out what will be filled anyway.
  void fillAround(const Rect& outer, const Rect& inner, Color color) {
    fill({outer.left, outer.top, outer.right, inner.top}, color);
    fill({outer.left, inner.top, inner.left, inner.bottom}, color);
    fill({inner.right, inner.top, outer.right, inner.bottom}, color);
    fill({outer.left, inner.bottom, outer.right, outer.bottom}, color);
  }

  void outline(const Rect& pixels, PenStyle style, Color color) {
    draw(pixels, {style, 0, color}, {BrushStyle::none}, 1);
  }

  void shadow(std::int32_t width, std::int32_t height, std::int32_t depth, Color color) {
    fill({depth, height, width + depth, height + depth}, color);
    fill({width, depth, width + depth, height}, color);
  }

 private:
  static constexpr std::int32_t kTwipsPerDot = wholeTwipsPerDot(kPictureDpi);

  void draw(const Rect& pixels, const Pen& pen, const Brush& brush, std::int32_t inside) {
    const auto twips = [this](std::int32_t pixel, std::int32_t less) {
      return clamped((std::int64_t{inDots(pixel, part_.dotsPerPixel)} - less) * kTwipsPerDot);
    };
    canvas_.setPen(pen);
    canvas_.setBrush(brush);
    canvas_.rectangle({twips(pixels.left, 0), twips(pixels.top, 0), twips(pixels.right, inside),
                       twips(pixels.bottom, inside)});
  }

  Canvas& canvas_;
  const ViewPart& part_;
};

}  // namespace

std::int32_t inDots(std::int32_t pixels, double dotsPerPixel) {
  return clamped(std::llround(pixels * dotsPerPixel));
}

void DrawSheet(Canvas& canvas, const PageView& view, const ViewPart& part) {
  const VSetScr& screen = view.screen;
  const Rect paper = {0, 0, screen.paper_width, screen.paper_height};
  const Rect printable = {screen.print_left, screen.print_top, screen.print_right,
                          screen.print_bottom};
  SheetPainter sheet(canvas, part);
  sheet.fillAround({0, 0, screen.view_width, screen.view_height}, paper, view.panel);
  if (!view.wide) {
    const std::int32_t depth =
        clamped(std::max<std::int64_t>(1, kShadowDepth * std::int64_t{view.zoom} / 100));
    sheet.shadow(paper.right, paper.bottom, depth, shadowOn(view.panel));
  }
  sheet.fillAround(paper, printable, view.show_unprintable ? kUnprintable : kWhite);
  sheet.outline(paper, PenStyle::solid, kBlack);
  sheet.fill(printable, kWhite);
  if (!view.show_unprintable) return;
  const Rect margins = {printable.left + screen.margin_left, printable.top + screen.margin_top,
                        printable.right - screen.margin_right,
                        printable.bottom - screen.margin_bottom};
  // Negative ones, which count cells of text, lead out of what is white already.
  if (screen.margin_left < 0 || screen.margin_top < 0) sheet.fill(margins, kWhite);
  sheet.outline(margins, PenStyle::dot, kMargins);
}

void paintPage(VDocPage& page, Canvas& canvas, const PageView& view, const ViewPart& part) {
  LoadCodePage(page.Settings->Page.BaseCodePage);
  const UntoldSidePictures looksOnly;
  canvas.clearClip();
  DrawSheet(canvas, view, part);
  const PageMapping mapping(view, part.dotsPerPixel);
  if (!view.wide) canvas.setClip(movedBy(part.corner, mapping.printable()));
  canvas.reset();
  canvas.setMapping(mapping.onCanvas(part.corner));
  DrawPage(page, canvas);
}

Extent contentOf(VDocPage& page, Point dpi) {
  LoadCodePage(page.Settings->Page.BaseCodePage);
  const UntoldSidePictures looksOnly;
  BitmapCanvas bitmap(1, 1, dpi.x);
  bitmap.canvas().setMapping({double(dpi.x), double(dpi.y), 0, 0});
  Extent content;
  MeasurePage(page, bitmap.canvas(), content.Width, content.Height);
  return content;
}

}  // namespace qor
