// Copying pictures.
#include "windows/selection/page_picture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "platform/canvas/bitmap_canvas.h"
#include "windows/bitmap_image.h"
#include "windows/view/page_overlay.h"
#include "windows/view/page_show.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr double kLeastDpi = 150;
constexpr double kMostDots = 64e6;  // of a picture, so that its memory doesn't grow with the zoom

// What is copied of a view, pixels.
Extent sizeOf(const PageView& view) {
  const VSetScr& screen = view.screen;
  if (view.wide) return {screen.view_width, screen.view_height};
  return {screen.paper_width, screen.paper_height};
}

// Dots for a pixel of the view.
double finenessOf(const PageView& view, const Extent& size, double dotsPerPixel) {
  const double dpi = std::max(1.0, view.screen.dpi_x * view.zoom / 100.0);
  const double most = std::sqrt(kMostDots / (double(size.Width) * size.Height));
  return std::min(std::max(dotsPerPixel, kLeastDpi / dpi), most);
}

QImage pictureOf(VDocPage& page, PageView view, double dotsPerPixel) {
  const Extent size = sizeOf(view);
  const double fineness = finenessOf(view, size, dotsPerPixel);
  view.show_unprintable = false;
  BitmapCanvas bitmap(inDots(size.Width, fineness), inDots(size.Height, fineness),
                      view.screen.dpi_x);
  paintPage(page, bitmap.canvas(), view, {{0, 0}, fineness});
  return imageOver(bitmap.pixels()).copy();
}

}  // namespace

bool hasPagePicture(const ViewDesk& desk, const PageShow& pages) {
  return desk.page_control->overlay().view() && pages.loadedPage() != nullptr;
}

void mnuCopyPictureClick(const ViewDesk& desk, const PageShow& pages) {
  if (!hasPagePicture(desk, pages)) return;
  const PageOverlay& overlay = desk.page_control->overlay();
  QGuiApplication::clipboard()->setImage(
      pictureOf(*pages.loadedPage(), *overlay.view(), overlay.devicePixelRatioF()));
}

}  // namespace qor
