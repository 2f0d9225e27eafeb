// Zooms that fit.
#include "window_model/zoom_fit.h"

namespace qor {
namespace {

constexpr std::int32_t kLargestFit = 10'000;  // percent, of a label on a wall of screens

bool fits(std::int32_t fit, const ScrollBars& bars) {
  return !bars.bottom && (fit == kWholeWidth || !bars.right);
}

// Views grow with their zoom, so that the search may halve its way.
template <class ViewAt>
std::int32_t fitted(std::int32_t zoom, const ScreenArea& area, std::int32_t thickness,
                    ViewAt viewAt) {
  if (!isFit(zoom)) return zoom;
  const VSetScr natural = viewAt(kNaturalZoom);
  if (natural.paper_width <= 0 || natural.paper_height <= 0) return kNaturalZoom;
  std::int32_t fitting = 1;
  std::int32_t beyond = kLargestFit + 1;
  while (beyond - fitting > 1) {
    const std::int32_t middle = (fitting + beyond) / 2;
    const VSetScr view = viewAt(middle);
    const Extent size = {view.view_width, view.view_height};
    (fits(zoom, barsFor(area, size, thickness)) ? fitting : beyond) = middle;
  }
  return fitting;
}

}  // namespace

std::int32_t fittedToSheet(std::int32_t zoom, const VSetPage& page, const VSetPrn& printer,
                           const ScreenArea& area, std::int32_t thickness) {
  return fitted(zoom, area, thickness,
                [&](std::int32_t percent) { return normalSheet(page, printer, area, percent); });
}

std::int32_t fittedToContent(std::int32_t zoom, const VSetPage& page, const VSetPrn& printer,
                             const ScreenArea& area, const Extent& content,
                             std::int32_t thickness) {
  return fitted(zoom, area, thickness, [&](std::int32_t percent) {
    return wideSheet(page, printer, area, content, percent);
  });
}

void centreSheet(VSetScr& sheet, const ScreenArea& area) {
  const Extent& client = area.client;
  if (sheet.view_width <= client.Width) sheet.origin_x = (client.Width - sheet.paper_width) / 2;
  if (sheet.view_height <= client.Height) sheet.origin_y = (client.Height - sheet.paper_height) / 2;
}

}  // namespace qor
