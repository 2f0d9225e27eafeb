// Paper: a canvas on the pages of a PDF document. On them a unit is a twip of the sheet, from its
// top left corner; the dots of the printer only tell where the layout's units lie and how thin a
// line can be.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/canvas/canvas.h"
#include "platform/canvas/device_space.h"
#include "platform/canvas/joined_boxes.h"
#include "platform/pdf/pdf_glyph_codes.h"
#include "platform/pdf/pdf_pages.h"

namespace qor {

class PdfCanvas : public Canvas {
 public:
  // The sheet's size and resolution in dots of the printer. The pages must live as long, and have
  // their size.
  PdfCanvas(PdfPages& pages, Point size, Point dotsPerInch);

  // All drawing is on a page. A new one is empty and has no clip.
  void beginPage();
  void endPage();

  Point dotsPerInch() const override { return space_.dotsPerInch(); }
  void beginLine() override { content().beginLine(); }
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

 private:
  // A rounded corner, in dots.
  struct Bend {
    Dots start;
    Dots corner;
    Dots end;
  };

  enum Corner { kUpperRight, kLowerRight };

  class TextPainter;

  static PdfColor pdfColor(Color color);
  PdfContent& content() { return pages_.content(); }
  PdfPoint twips(Dots dots) const;
  PdfPoint onPage(Dots dots) const;
  PdfBox boxOnPage(const DotBox& box) const;

  bool usePen();
  bool useBrush();
  std::string hatchName(BrushStyle style);
  void paintRound(const DotBox& box, Dots radii, Corner first);
  void addBend(const Bend& bend, bool withEdge);

  PdfPages& pages_;
  PdfGlyphCodes codes_;
  DeviceSpace space_;
  bool clipped_ = false;
  std::string piece_;                                          // of a text, while it is painted
  std::vector<PdfStep> steps_;                                 // in it
  JoinedBoxes boxes_;                                          // of the text
  std::map<std::pair<BrushStyle, int>, std::string> hatches_;  // by the side of their tiles
};

}  // namespace qor
