// Pages of one size, drawn one after the other into a PDF document that is written as it goes.
#pragma once

#include <exception>
#include <memory>
#include <string>

#include "platform/canvas/cairo_canvas.h"
#include "platform/print/paper_pictures.h"

namespace qor {

class ByteSink;

struct PdfSheet {
  double width = 0;  // points
  double height = 0;
  Point dots;  // the same in dots of the printer
  Point dotsPerInch;
};

class PdfPages {
 public:
  PdfPages(ByteSink& sink, const PdfSheet& sheet, const std::string& title);
  ~PdfPages();
  PdfPages(const PdfPages&) = delete;
  PdfPages& operator=(const PdfPages&) = delete;

  // Draws on the page at hand, in dots of the printer.
  Canvas& canvas();

  // Each throws what the sink threw.
  void endPage();
  void finish();

 private:
  class Page;

  static cairo_status_t take(void* self, const unsigned char* bytes, unsigned count);
  void check();

  ByteSink& sink_;
  std::exception_ptr failure_;
  bool abandoned_ = false;
  PaperPictures pictures_;
  CairoOwned<cairo_surface_t> surface_;
  std::unique_ptr<Page> page_;
};

}  // namespace qor
