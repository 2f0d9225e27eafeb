// The Cairo canvas of bitmaps, for bitmap_canvas.cpp.
#pragma once

#include <vector>

#include "platform/canvas/box_drawing.h"
#include "platform/canvas/cairo_canvas.h"
#include "platform/canvas/glyph_masks.h"

namespace qor {

// Paints level text itself, glyph by glyph at quarters of a dot, where Cairo would put each glyph
// on a whole one; turned and very large text is left to Cairo.
class BitmapPainter : public CairoCanvas {
 public:
  BitmapPainter(cairo_surface_t* surface, Point size, int dpi);

  void setClip(const Rect& dots) override;
  void clearClip() override;
  // A field without an outline is filled dot by dot; barcodes are made of them.
  void rectangle(const Rect& rect) override;

 protected:
  void clipText(const Rect& rect) override;
  void unclipText() override;
  void showGlyphs(const TextRun& run, Dots direction) override;

 private:
  void showLevelGlyphs(const TextRun& run);
  void paintMask(const GlyphMask& mask, int x, int y, std::uint32_t color);
  void paintField(const DotRect& field, std::uint32_t color);

  std::uint32_t* row(int y) { return pixels_ + static_cast<std::ptrdiff_t>(y) * stride_; }

  cairo_surface_t* surface_;
  std::uint32_t* pixels_;
  int stride_;  // pixels
  DotRect clip_;
  std::vector<DotRect> saved_;  // clips from before the text boxes that are open
  GlyphMasks masks_;
};

}  // namespace qor
