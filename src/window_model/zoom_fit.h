// Zooms at which a page is seen in all its width, or in whole.
#pragma once

#include "window_model/sheet_view.h"
#include "window_model/zoom_list.h"

namespace qor {

// In the place of a percentage: the largest at which a page with its gaps leaves no bar for
// scrolling below it, and the largest at which it leaves none at all.
inline constexpr std::int32_t kWholeWidth = -3;
inline constexpr std::int32_t kWholePage = -4;

constexpr bool isFit(std::int32_t zoom) {
  return zoom == kWholeWidth || zoom == kWholePage;
}

// The percentage of a zoom in the area, whose bars are `thickness` pixels thick. Zooms other than
// the two stay as they are; a page without a size has 100.
std::int32_t fittedToSheet(std::int32_t zoom, const VSetPage& page, const VSetPrn& printer,
                           const ScreenArea& area, std::int32_t thickness);

// The same in the wide view, for a page whose content takes so many pixels at 100 percent.
std::int32_t fittedToContent(std::int32_t zoom, const VSetPage& page, const VSetPrn& printer,
                             const ScreenArea& area, const Extent& content, std::int32_t thickness);

// Puts a sheet that was fitted between its gaps, in the middle of the area where there is no bar.
void centreSheet(VSetScr& sheet, const ScreenArea& area);

}  // namespace qor
