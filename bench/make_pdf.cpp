// Writes the plain text of a report as a PDF, so that other programs can draw the same pages:
//   make_pdf REPORT.txt OUT.pdf
// The lines stand where the viewer puts them: A4, 10 points of Courier New's outline, no margins.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include <cairo-pdf.h>
#include <cairo.h>

namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;
constexpr double kLineStep = 11.35;  // points
constexpr double kAscent = 8.35;

std::string readAll(const char* path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

void showPage(cairo_t* context, std::string_view page) {
  double y = kAscent;
  while (!page.empty()) {
    const std::string_view line = page.substr(0, page.find("\r\n"));
    page.remove_prefix(std::min(page.size(), line.size() + 2));
    cairo_move_to(context, 0, y);
    cairo_show_text(context, std::string(line).c_str());
    y += kLineStep;
  }
  cairo_show_page(context);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("make_pdf REPORT.txt OUT.pdf\n", stderr);
    return 2;
  }
  const std::string text = readAll(argv[1]);
  cairo_surface_t* surface =
      cairo_pdf_surface_create(argv[2], 210 * kPointsPerMillimetre, 297 * kPointsPerMillimetre);
  cairo_t* context = cairo_create(surface);
  cairo_select_font_face(context, "Liberation Mono", CAIRO_FONT_SLANT_NORMAL,
                         CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, 10);
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view page = rest.substr(0, rest.find('\f'));
    showPage(context, page);
    rest.remove_prefix(std::min(rest.size(), page.size() + 3));
  }
  cairo_destroy(context);
  cairo_surface_destroy(surface);
}
