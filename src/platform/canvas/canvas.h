// What pages are drawn on. A canvas maps logical units (twips, once setMapping was called) to the
// dots of a device, keeps a pen, a brush, a font and a current position, and draws texts, shapes
// and pictures. Coordinates are logical, y runs downward; nothing here reports a failure.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "platform/canvas/color.h"
#include "platform/fonts/fonts.h"
#include "platform/fonts/log_font.h"

namespace qor {

class StoredPicture;

struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;

  bool operator==(const Point&) const = default;
};

struct Rect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;

  std::int64_t width() const { return std::int64_t{right} - left; }
  std::int64_t height() const { return std::int64_t{bottom} - top; }
};

// 1440 logical units are dpi dots; logical (0, 0) is the dot (originX, originY).
struct Mapping {
  double dpiX = 0;
  double dpiY = 0;
  std::int32_t originX = 0;
  std::int32_t originY = 0;
};

enum class PenStyle { none, solid, dash, dot, dashDot, dashDotDot };

struct Pen {
  PenStyle style = PenStyle::solid;
  std::int32_t width = 1;  // logical units; never thinner than a dot
  Color color = kBlack;
};

enum class BrushStyle {
  none,
  solid,
  backwardDiagonal,
  cross,
  diagonalCross,
  forwardDiagonal,
  horizontal,
  vertical
};

struct Brush {
  BrushStyle style = BrushStyle::solid;
  Color color = kWhite;
};

enum class Align { start, centre, end };

// Glyphs of one font on one straight line, ready to be painted.
struct PlacedGlyph {
  const FontFace* face = nullptr;
  std::uint32_t index = 0;
  double distance = 0;  // from the start of the run along its direction, logical units
};

struct TextRun {
  const ScaledFont& font;
  const LogFont& record;  // rotation, underline and strike-out
  Color color;
  double x;  // top left of the cell of the first character
  double y;
  double angle;           // of its direction, radians, counter-clockwise
  double length;          // logical units along the direction
  double characterExtra;  // behind each character, in the length
  std::u32string_view text;
  std::span<const PlacedGlyph> glyphs;

  // Whether it runs to the right: its lines then may lie on whole dots.
  bool level() const { return record.Escapement % 3600 == 0; }
};

class Canvas {
 public:
  virtual ~Canvas() = default;

  // The device's dots per inch, whatever the mapping is.
  virtual Point dotsPerInch() const = 0;

  // What follows belongs to the next line of the report: for canvases whose readers want to know.
  virtual void beginLine() {}

  // Mapping and clip. A clip is in dots and holds until it is cleared.
  virtual void setMapping(const Mapping& mapping) = 0;
  virtual void setClip(const Rect& dots) = 0;
  virtual void clearClip() = 0;

  // Pen, brush, text settings and position as they are on a new canvas.
  void reset();

  // Pen and brush stay selected until others are; shapes and frames use what they find.
  void setPen(const Pen& pen) { pen_ = pen; }
  void setBrush(const Brush& brush) { brush_ = brush; }
  const Pen& pen() const { return pen_; }
  const Brush& brush() const { return brush_; }

  // The font of texts, and what else they need.
  void setFont(const LogFont& font);
  const TextMetrics& textMetrics() const { return font_->metrics(); }
  void setTextColor(Color color) { text_color_ = color; }
  void setCharacterExtra(std::int32_t extra) { character_extra_ = extra; }

  // The current position, where text and lines start.
  void moveTo(Point position);
  Point currentPosition() const;

  // Draws the text with the top left of its first cell at the current position, and moves that
  // position behind it, along the direction of the text. A font must be set.
  void textOut(std::u32string_view text);

  // Draws one line of text aligned in the rectangle and cut at its edges; an edge pair that leaves
  // no room cuts nothing. The current position stays.
  void drawText(std::u32string_view text, const Rect& rect, Align horizontal, Align vertical);

  // The length of the text along its direction, in logical units.
  double textLength(std::u32string_view text) const;

  // Shapes leave the current position alone.
  virtual void line(Point start, Point end) = 0;
  virtual void rectangle(const Rect& rect) = 0;
  // The corners are quarters of an ellipse of the given width and height.
  virtual void roundRect(const Rect& rect, std::int32_t width, std::int32_t height) = 0;
  virtual void ellipse(const Rect& rect) = 0;

  // Draws the whole picture, stretched into the rectangle; nothing where its file has gone.
  virtual void drawPicture(const StoredPicture& picture, const Rect& rect) = 0;

 protected:
  virtual void paintText(const TextRun& run) = 0;
  // Cuts what is painted to the columns and rows of the rectangle that have room, until unclipped.
  virtual void clipText(const Rect& rect) = 0;
  virtual void unclipText() = 0;

 private:
  struct Position {
    double x = 0;
    double y = 0;
  };

  Position paintAt(Position start, std::u32string_view text);

  Pen pen_;
  Brush brush_;
  LogFont record_;
  std::shared_ptr<const ScaledFont> font_;
  Color text_color_ = kBlack;
  std::int32_t character_extra_ = 0;
  Position position_;
  std::vector<PlacedGlyph> glyphs_;
};

}  // namespace qor
