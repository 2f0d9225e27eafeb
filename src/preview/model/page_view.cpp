// Pages on sheets.
#include "preview/model/page_view.h"

#include <algorithm>
#include <cmath>

#include "base/units.h"
#include "document/code_page.h"
#include "document/vdocpage.h"
#include "platform/bitmap_canvas.h"
#include "render/page_walk.h"

namespace qor {
namespace {

constexpr Color kShadow = 0x5C6D76;
constexpr Color kUnprintable = 0xF0F0F0;
constexpr Color kMargins = 0xFF0000;
constexpr std::int32_t kShadowDepth = 7;  // pixels

std::int32_t inDots(std::int32_t pixels, const ViewPart& part) {
  return clamped(std::llround(pixels * part.dotsPerPixel));
}

// The sheet is drawn as on a screen of the common resolution, where a pixel is whole twips.
constexpr std::int32_t kTwipsPerPixel = kTwipsPerInch / kPictureDpi;

void mapPixels(Canvas& canvas, const ViewPart& part) {
  const std::int32_t dpi = inDots(kPictureDpi, part);
  canvas.setMapping({dpi, dpi, -part.corner.x, -part.corner.y});
}

void mapTwips(Canvas& canvas, const PageView& view, const ViewPart& part) {
  const VSetScr& screen = view.screen;
  const auto extent = [&](std::int32_t dpi) {
    return inDots(clamped(std::int64_t{dpi} * view.zoom / 100), part);
  };
  canvas.setMapping({extent(screen.dpi_x), extent(screen.dpi_y),
                     inDots(screen.print_left, part) - part.corner.x,
                     inDots(screen.print_top, part) - part.corner.y});
}

Rect printableDots(const VSetScr& screen, const ViewPart& part) {
  return {inDots(screen.print_left, part) - part.corner.x,
          inDots(screen.print_top, part) - part.corner.y,
          inDots(screen.print_right, part) - part.corner.x,
          inDots(screen.print_bottom, part) - part.corner.y};
}

// A rectangle in pixels of the view.
void drawField(Canvas& canvas, const Rect& pixels, const Pen& pen, Color fill) {
  const auto twips = [](std::int32_t pixel) {
    return clamped(std::int64_t{pixel} * kTwipsPerPixel);
  };
  canvas.setPen(pen);
  canvas.setBrush({BrushStyle::solid, fill});
  canvas.rectangle(
      {twips(pixels.left), twips(pixels.top), twips(pixels.right), twips(pixels.bottom)});
}

void drawShadow(Canvas& canvas, std::int32_t width, std::int32_t height) {
  const Pen pen = {PenStyle::solid, 0, kShadow};
  drawField(canvas, {kShadowDepth, height, width + kShadowDepth, height + kShadowDepth}, pen,
            kShadow);
  drawField(canvas, {width, kShadowDepth, width + kShadowDepth, height}, pen, kShadow);
}

}  // namespace

void DrawSheet(Canvas& canvas, const PageView& view, const ViewPart& part) {
  const VSetScr& screen = view.screen;
  mapPixels(canvas, part);
  drawField(canvas, {0, 0, screen.view_width, screen.view_height}, {PenStyle::none}, view.panel);
  if (!view.wide) drawShadow(canvas, screen.paper_width, screen.paper_height);
  drawField(canvas, {0, 0, screen.paper_width, screen.paper_height}, {PenStyle::solid, 0, kBlack},
            view.show_unprintable ? kUnprintable : kWhite);
  drawField(canvas, {screen.print_left, screen.print_top, screen.print_right, screen.print_bottom},
            {PenStyle::solid, 0, kWhite}, kWhite);
  if (!view.show_unprintable) return;
  drawField(canvas,
            {screen.print_left + screen.margin_left, screen.print_top + screen.margin_top,
             screen.print_right - screen.margin_right, screen.print_bottom - screen.margin_bottom},
            {PenStyle::dot, 0, kMargins}, kWhite);
}

void paintPage(VDocPage& page, Canvas& canvas, const PageView& view, const ViewPart& part) {
  LoadCodePage(page.Settings->Page.BaseCodePage);
  canvas.clearClip();
  DrawSheet(canvas, view, part);
  if (!view.wide) canvas.setClip(printableDots(view.screen, part));
  canvas.reset();
  mapTwips(canvas, view, part);
  DrawPage(page, canvas);
}

Extent contentOf(VDocPage& page, Point dpi) {
  LoadCodePage(page.Settings->Page.BaseCodePage);
  BitmapCanvas bitmap(1, 1, dpi.x);
  bitmap.canvas().setMapping({dpi.x, dpi.y, 0, 0});
  Extent content;
  MeasurePage(page, bitmap.canvas(), content.Width, content.Height);
  return content;
}

}  // namespace qor
