// Bitmaps as Cairo image surfaces.
#include "platform/canvas/bitmap_canvas.h"

#include <string>

#include "base/errors.h"
#include "platform/canvas/bitmap_painter.h"

namespace qor {
namespace {

cairo_surface_t* createSurface(int width, int height) {
  const bool empty = width <= 0 || height <= 0;
  if (empty || width > kMaxPictureSide || height > kMaxPictureSide ||
      std::int64_t{width} * height > kMaxPicturePixels) {
    throw PictureError("a picture can't have " + std::to_string(width) + " by " +
                       std::to_string(height) + " dots");
  }
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
  if (cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS) return surface;
  cairo_surface_destroy(surface);
  throw PictureError("there is no memory for a picture of " + std::to_string(width) + " by " +
                     std::to_string(height) + " dots");
}

}  // namespace

struct BitmapCanvas::Parts {
  Parts(int width, int height, int dpi)
      : surface(createSurface(width, height)), canvas(surface.get(), {width, height}, dpi) {}

  CairoOwned<cairo_surface_t> surface;
  BitmapPainter canvas;
};

BitmapCanvas::BitmapCanvas(int width, int height, int dpi)
    : parts_(std::make_unique<Parts>(width, height, dpi)) {
  clear();
}

BitmapCanvas::~BitmapCanvas() = default;

Canvas& BitmapCanvas::canvas() {
  return parts_->canvas;
}

void BitmapCanvas::clear() {
  const CairoOwned<cairo_t> context(cairo_create(parts_->surface.get()));
  cairo_set_source_rgb(context.get(), 1, 1, 1);
  cairo_paint(context.get());
  parts_->canvas.reset();
}

PixelView BitmapCanvas::pixels() {
  cairo_surface_t* surface = parts_->surface.get();
  cairo_surface_flush(surface);
  return {cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface),
          cairo_image_surface_get_stride(surface) / 4,
          reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface))};
}

}  // namespace qor
