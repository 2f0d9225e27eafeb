// A canvas that writes down what is drawn on it, one line a call, so that pages can be compared as
// text.
#pragma once

#include <string>

#include "document/vdocpage.h"
#include "platform/canvas/canvas.h"

namespace qor::test {

class RecordingCanvas : public Canvas {
 public:
  explicit RecordingCanvas(int dotsPerInch = 96) : dots_per_inch_{dotsPerInch, dotsPerInch} {}

  // All calls so far but those for round shapes. Coordinates are in twips.
  const std::string& record() const { return record_; }

  Point dotsPerInch() const override { return dots_per_inch_; }
  void setMapping(const Mapping&) override {}
  void setClip(const Rect&) override {}
  void clearClip() override {}
  void line(Point start, Point end) override;
  void rectangle(const Rect& rect) override;
  void roundRect(const Rect&, std::int32_t, std::int32_t) override {}
  void ellipse(const Rect&) override {}
  void drawPicture(const StoredPicture& picture, const Rect& rect) override;

 protected:
  void paintText(const TextRun& run) override;
  void clipText(const Rect& rect) override;
  void unclipText() override {}

 private:
  void note(const std::string& line) { record_ += line + "\n"; }
  std::string tools() const;

  Point dots_per_inch_;
  std::string record_;
};

// What pages draw: a loaded one, or the first of a report with these bytes.
std::string drawn(VDocPage& page);
std::string drawn(std::string_view bytes, int codePage = 1251);

}  // namespace qor::test
