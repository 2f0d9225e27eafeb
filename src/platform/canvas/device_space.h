// Where logical units lie on the dots of a device: the arithmetic that canvases share.
#pragma once

#include "platform/canvas/canvas.h"

namespace qor {

// A place on a device, or a way across it.
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

class DeviceSpace {
 public:
  // Maps 1440 logical units to an inch until told otherwise.
  DeviceSpace(Point size, Point dotsPerInch);

  void setMapping(const Mapping& mapping) { mapping_ = mapping; }

  Point size() const { return size_; }
  Point dotsPerInch() const { return dots_per_inch_; }
  double mappedDpi() const { return mapping_.dpiX; }  // of 1440 logical units across

  Dots dots(double x, double y) const;
  Dots dotsPerUnit() const;
  double dotsAcross(double units) const;

  // The rectangle, its corners in order, cut off the device.
  DotBox box(const Rect& rect) const;
  // What texts in the rectangle are cut at: an edge pair that leaves no room cuts nothing.
  DotBox textClip(const Rect& rect) const;
  // The same as box for curves, which can't be cut so near without another shape.
  DotBox curveBox(const Rect& rect) const;
  // Half the width and half the height of the ellipse that rounds a box's corners; 0 for none.
  Dots cornerRadii(const DotBox& box, std::int32_t width, std::int32_t height) const;

  // Cuts a line, on the line itself. False if nothing of it is near the device.
  bool cutLine(Dots& from, Dots& to) const;

  // At least a dot; wider ones than any sheet needs are cut.
  double penWidth(const Pen& pen) const;

  // Whether anything of the text may be seen.
  bool shows(const TextRun& run) const;

 private:
  // How far off the device lines and edges end at the latest, before any library's range does; the
  // same length on all, so that dashes begin alike.
  Dots beyond() const;
  DotBox boxWithin(const Rect& rect, Dots beyond) const;

  Point size_;
  Point dots_per_inch_;
  Mapping mapping_;
};

}  // namespace qor
