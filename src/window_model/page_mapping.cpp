// Twips and pixels.
#include "window_model/page_mapping.h"

#include "base/units.h"

namespace qor {
namespace {

double dotsPerInch(std::int32_t dpi, const PageView& view, double dotsPerPixel) {
  const std::int64_t pixelsPerInch = std::int64_t{dpi} * view.zoom / 100;
  return static_cast<double>(pixelsPerInch) * dotsPerPixel;
}

}  // namespace

PageMapping::PageMapping(const PageView& view, double dotsPerPixel)
    : dots_per_pixel_(dotsPerPixel),
      dpi_x_(dotsPerInch(view.screen.dpi_x, view, dotsPerPixel)),
      dpi_y_(dotsPerInch(view.screen.dpi_y, view, dotsPerPixel)),
      printable_{inDots(view.screen.print_left, dotsPerPixel),
                 inDots(view.screen.print_top, dotsPerPixel),
                 inDots(view.screen.print_right, dotsPerPixel),
                 inDots(view.screen.print_bottom, dotsPerPixel)} {
}

Spot PageMapping::toPixels(const Spot& twips) const {
  return {(realDotsFromTwips(twips.x, dpi_x_) + printable_.left) / dots_per_pixel_,
          (realDotsFromTwips(twips.y, dpi_y_) + printable_.top) / dots_per_pixel_};
}

Spot PageMapping::toTwips(const Spot& pixels) const {
  return {realTwipsFromDots(pixels.x * dots_per_pixel_ - printable_.left, dpi_x_),
          realTwipsFromDots(pixels.y * dots_per_pixel_ - printable_.top, dpi_y_)};
}

Mapping PageMapping::onCanvas(const Point& corner) const {
  return {dpi_x_, dpi_y_, printable_.left - corner.x, printable_.top - corner.y};
}

}  // namespace qor
