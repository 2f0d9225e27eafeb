// Writes the plain text of a report as a PDF, so that other programs can draw the same pages:
//   make_pdf REPORT.txt OUT.pdf
#include <cstdio>

#include <cairo-pdf.h>
#include <cairo.h>

#include "report_lines.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("make_pdf REPORT.txt OUT.pdf\n", stderr);
    return 2;
  }
  cairo_surface_t* surface = cairo_pdf_surface_create(argv[2], kPageWidth, kPageHeight);
  cairo_t* context = cairo_create(surface);
  cairo_select_font_face(context, kFontFamily, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, kFontSize);
  forEachLine(
      readAll(argv[1]),
      [context](std::string_view text, double y) {
        cairo_move_to(context, 0, y);
        cairo_show_text(context, std::string(text).c_str());
      },
      [context] { cairo_show_page(context); });
  cairo_destroy(context);
  cairo_surface_destroy(surface);
}
