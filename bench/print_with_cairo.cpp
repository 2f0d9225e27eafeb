// A bare loop that puts the glyphs of a report's plain ASCII text into a PDF, and nothing else:
//   print_with_cairo REPORT.txt OUT.pdf
#include <array>
#include <cstdio>
#include <vector>

#include <cairo-pdf.h>
#include <cairo.h>

#include "report_lines.h"

namespace {

using GlyphTable = std::array<unsigned long, 128>;

GlyphTable glyphsOf(cairo_scaled_font_t* font) {
  GlyphTable table{};
  for (std::size_t i = ' '; i < table.size(); ++i) {
    const char text = static_cast<char>(i);
    cairo_glyph_t* glyphs = nullptr;
    int count = 0;
    cairo_scaled_font_text_to_glyphs(font, 0, 0, &text, 1, &glyphs, &count, nullptr, nullptr,
                                     nullptr);
    if (count > 0) table[i] = glyphs[0].index;
    cairo_glyph_free(glyphs);
  }
  return table;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("print_with_cairo REPORT.txt OUT.pdf\n", stderr);
    return 2;
  }
  cairo_surface_t* surface = cairo_pdf_surface_create(argv[2], kPageWidth, kPageHeight);
  cairo_t* context = cairo_create(surface);
  cairo_select_font_face(context, kFontFamily, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, kFontSize);
  const GlyphTable table = glyphsOf(cairo_get_scaled_font(context));
  cairo_text_extents_t extents;
  cairo_text_extents(context, "0", &extents);
  std::vector<cairo_glyph_t> glyphs;
  forEachLine(
      readAll(argv[1]),
      [&](std::string_view text, double y) {
        glyphs.clear();
        for (std::size_t i = 0; i < text.size(); ++i) {
          const auto byte = static_cast<unsigned char>(text[i]) % table.size();
          glyphs.push_back({table[byte], static_cast<double>(i) * extents.x_advance, y});
        }
        cairo_show_glyphs(context, glyphs.data(), static_cast<int>(glyphs.size()));
      },
      [context] { cairo_show_page(context); });
  cairo_destroy(context);
  cairo_surface_destroy(surface);
}
