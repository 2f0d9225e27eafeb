// Drawing by Cairo, for the files of platform/ that make canvases on its surfaces.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include <cairo.h>

#include "platform/canvas/canvas.h"
#include "platform/canvas/device_space.h"

namespace qor {

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
template <class T>
using CairoOwned = std::unique_ptr<T, CairoDeleter>;

// Straight edges lie on whole dots, and glyphs are hinted vertically.
class CairoCanvas : public Canvas {
 public:
  // The surface's size and resolution are in dots.
  CairoCanvas(cairo_surface_t* surface, Point size, Point dotsPerInch);
  ~CairoCanvas() override;

  Point dotsPerInch() const override { return space_.dotsPerInch(); }
  void setMapping(const Mapping& mapping) override { space_.setMapping(mapping); }
  void setClip(const Rect& dots) override;
  void clearClip() override;

  void line(Point start, Point end) override;
  void rectangle(const Rect& rect) override;
  void roundRect(const Rect& rect, std::int32_t width, std::int32_t height) override;
  void ellipse(const Rect& rect) override;
  void drawPicture(const StoredPicture& picture, const Rect& rect) override;

 protected:
  void paintText(const TextRun& run) override;
  void clipText(const Rect& rect) override;
  void unclipText() override;

  const DeviceSpace& space() const { return space_; }
  // The rectangle with its edges where they are painted: on the grid of dots, for the pen in force.
  DotBox edges(const Rect& rect) const;

  // Paints the glyphs of a run; `direction` is where it goes, one logical unit long.
  virtual void showGlyphs(const TextRun& run, Dots direction);

 private:
  double penWidth() const;
  double onGrid(double edge) const;

  void useColor(Color color);
  void preparePen();
  void strokePath();
  void fillPath();
  void useHatch();
  void paintPath();

  void useFace(const FontFace& face, const TextRun& run);
  void putGlyphs(const TextRun& run);
  void paintStroke(const TextRun& run, const TextStroke& stroke);

  CairoOwned<cairo_t> context_;
  CairoOwned<cairo_font_options_t> font_options_;
  std::map<const FontFace*, CairoOwned<cairo_font_face_t>> faces_;
  std::vector<cairo_glyph_t> glyphs_;
  DeviceSpace space_;
};

}  // namespace qor
