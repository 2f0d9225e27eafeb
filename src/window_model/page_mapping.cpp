// Twips and pixels.
#include "window_model/page_mapping.h"

#include "base/units.h"

namespace qor {
namespace {

double dotsPerInch(std::int32_t dpi, const PageView& view, double dotsPerPixel) {
  return static_cast<double>(std::int64_t{dpi} * view.zoom / 100) * dotsPerPixel;
}

double inTwips(double dots, double dpi) {
  return dpi > 0 ? dots * kTwipsPerInch / dpi : 0;
}

}  // namespace

PageMapping::PageMapping(const PageView& view, double dotsPerPixel)
    : dotsPerPixel_(dotsPerPixel),
      dpiX_(dotsPerInch(view.screen.dpi_x, view, dotsPerPixel)),
      dpiY_(dotsPerInch(view.screen.dpi_y, view, dotsPerPixel)),
      printable_{inDots(view.screen.print_left, dotsPerPixel),
                 inDots(view.screen.print_top, dotsPerPixel),
                 inDots(view.screen.print_right, dotsPerPixel),
                 inDots(view.screen.print_bottom, dotsPerPixel)} {
}

Spot PageMapping::toPixels(const Spot& twips) const {
  return {(twips.x * dpiX_ / kTwipsPerInch + printable_.left) / dotsPerPixel_,
          (twips.y * dpiY_ / kTwipsPerInch + printable_.top) / dotsPerPixel_};
}

Spot PageMapping::toTwips(const Spot& pixels) const {
  return {inTwips(pixels.x * dotsPerPixel_ - printable_.left, dpiX_),
          inTwips(pixels.y * dotsPerPixel_ - printable_.top, dpiY_)};
}

Mapping PageMapping::onCanvas(const Point& corner) const {
  return {dpiX_, dpiY_, printable_.left - corner.x, printable_.top - corner.y};
}

}  // namespace qor
