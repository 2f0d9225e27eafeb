// A canvas for whoever only looks where things go: it paints nothing, and has no dots, so that
// items leave no pictures of themselves beside the report.
#pragma once

#include "platform/canvas/canvas.h"

namespace qor {

class SilentCanvas : public Canvas {
 public:
  Point dotsPerInch() const override { return {}; }
  void setMapping(const Mapping&) override {}
  void setClip(const Rect&) override {}
  void clearClip() override {}
  void line(Point, Point) override {}
  void rectangle(const Rect&) override {}
  void roundRect(const Rect&, std::int32_t, std::int32_t) override {}
  void ellipse(const Rect&) override {}
  void drawPicture(const StoredPicture&, const Rect&) override {}

 protected:
  void paintText(const TextRun&) override {}
  void clipText(const Rect&) override {}
  void unclipText() override {}
};

}  // namespace qor
