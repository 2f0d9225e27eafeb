// Drawing by Cairo, for the files of platform/ that make canvases on its surfaces.
#pragma once

#include <map>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <cairo.h>

#include "platform/canvas/canvas.h"

namespace qor {

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
template <class T>
using CairoOwned = std::unique_ptr<T, CairoDeleter>;

// What the dots of the surface are like.
enum class DotGrid {
  visible,  // a bitmap: straight edges lie on whole dots, glyphs are hinted vertically
  fine      // paper: nothing is moved
};

// Lines and edges end this far off the surface at the latest, in dots. Thicker pens are cut.
inline constexpr double kBeyondSurface = 1024;

class CairoCanvas : public Canvas {
 public:
  // The surface's size and resolution are in dots.
  CairoCanvas(cairo_surface_t* surface, Point size, Point dotsPerInch, DotGrid grid);
  ~CairoCanvas() override;

  Point dotsPerInch() const override { return dots_per_inch_; }
  void setMapping(const Mapping& mapping) override;
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

  struct Dots {
    double x = 0;
    double y = 0;
  };

  struct DotBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
  };

  Dots dots(double x, double y) const;
  Dots dotsPerTwip() const;
  // The rectangle with its edges where they are painted: on the grid of dots, for the pen in force.
  DotBox edges(const Rect& rect) const;
  Point size() const { return size_; }

  // Whether drawing has failed so far.
  cairo_status_t status() const { return cairo_status(context_.get()); }

  // For surfaces that count in units of their own: dots become that many of them.
  void setUnitsPerDot(double x, double y) { cairo_scale(context_.get(), x, y); }

  // Paints the glyphs of a run; `direction` is where it goes, one logical unit long.
  virtual void showGlyphs(const TextRun& run, Dots direction);

  // Paints the clip with the picture, a unit a pixel; `exact` where each covers one dot.
  virtual void paintPicture(cairo_t* context, const StoredPicture& picture, bool exact);

  // Puts glyphs of the face in use, one for each character, at their places in dots.
  virtual void putGlyphs(cairo_t* context, const TextRun& run, std::u32string_view text,
                         std::span<const cairo_glyph_t> glyphs);

 private:
  DotBox box(const Rect& rect, double beyond) const;
  double penWidth() const;
  double onGrid(double edge) const;

  void useColor(Color color);
  void preparePen();
  void strokePath();
  void fillPath();
  void useHatch(const Brush& brush);
  void paintPath();

  bool isVisible(const TextRun& run) const;
  void useFace(const FontFace& face, const TextRun& run);
  void paintStroke(const TextRun& run, const TextStroke& stroke);

  CairoOwned<cairo_t> context_;
  CairoOwned<cairo_font_options_t> font_options_;
  std::map<const FontFace*, CairoOwned<cairo_font_face_t>> faces_;
  std::vector<cairo_glyph_t> glyphs_;
  Point size_;
  Point dots_per_inch_;
  DotGrid grid_;
  Mapping mapping_;
};

}  // namespace qor
