// Sheets on the screen.
#include "window_model/sheet_view.h"

#include <algorithm>

#include "base/units.h"
#include "window_model/zoom_list.h"

namespace qor {
namespace {

constexpr std::int32_t kGapAtNaturalZoom = 10;  // pixels around the sheet
constexpr double kWidthAllowance = 2;           // percent that a fit to the width leaves

// Pixels for a dot of the printer.
struct Scale {
  double x = 0;
  double y = 0;
};

double ratio(double value, std::int32_t divisor) {
  return divisor > 0 ? value / divisor : 0;
}

std::int32_t quotient(std::int64_t value, std::int64_t divisor) {
  return divisor > 0 ? clamped(value / divisor) : 0;
}

Scale scaleOf(const VSetPrn& printer, std::int32_t dpiX, std::int32_t dpiY, std::int32_t zoom) {
  return {ratio(double(zoom) * dpiX, printer.LogPixelsX) / 100,
          ratio(double(zoom) * dpiY, printer.LogPixelsY) / 100};
}

// The percentage at which `length` pixels hold `paper` dots.
double fittingPercent(std::int32_t length, std::int32_t paper, std::int32_t printerDpi,
                      std::int32_t dpi) {
  return ratio(ratio(length, paper) * 100 * printerDpi, dpi);
}

std::int32_t percentOf(const VSetPrn& printer, const ScreenArea& area, std::int32_t zoom) {
  switch (zoom) {
    case 0: return kNaturalZoom;
    case kFitWidth:
      return std::max(1, truncated(fittingPercent(area.client.Width, printer.PhysicalWidth,
                                                  printer.LogPixelsX, area.dpi_x) -
                                   kWidthAllowance));
    case kFitHeight:
      return std::max(1, truncated(fittingPercent(area.client.Height, printer.PhysicalHeight,
                                                  printer.LogPixelsY, area.dpi_y)));
    default: return zoom;
  }
}

// A small sheet stands in the middle of the area but for a pixel, a large one behind the gap.
std::int32_t originOf(std::int32_t client, std::int32_t view, std::int32_t gap) {
  return client > view ? (client - view) / 2 - 1 : gap;
}

// What all views have.
VSetScr screenAt(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                 std::int32_t zoom) {
  VSetScr screen;
  screen.dpi_x = area.dpi_x;
  screen.dpi_y = area.dpi_y;
  screen.ref_dpi_x = quotient(std::int64_t{printer.LogPixelsX} * 100, zoom);
  screen.ref_dpi_y = quotient(std::int64_t{printer.LogPixelsY} * 100, zoom);
  screen.margin_left = pixelsFromMillimetres(page.MarginLeft, area.dpi_x);
  screen.margin_top = pixelsFromMillimetres(page.MarginTop, area.dpi_y);
  return screen;
}

void placeSheet(VSetScr& screen, const VSetPrn& printer, const ScreenArea& area, const Scale& scale,
                std::int32_t gap) {
  screen.view_width =
      clamped(std::int64_t{truncated(printer.PhysicalWidth * scale.x)} + std::int64_t{2} * gap);
  screen.view_height =
      clamped(std::int64_t{truncated(printer.PhysicalHeight * scale.y)} + std::int64_t{2} * gap);
  screen.origin_x = originOf(area.client.Width, screen.view_width, gap);
  screen.origin_y = originOf(area.client.Height, screen.view_height, gap);
  screen.paper_width = truncated(printer.PhysicalWidth * scale.x);
  screen.paper_height = truncated(printer.PhysicalHeight * scale.y);
  screen.print_left = truncated(printer.PhysicalOffsetX * scale.x);
  screen.print_top = truncated(printer.PhysicalOffsetY * scale.y);
  screen.print_right =
      clamped(std::int64_t{truncated(printer.HorzRes * scale.x)} + screen.print_left);
  screen.print_bottom =
      clamped(std::int64_t{truncated(printer.VertRes * scale.y)} + screen.print_top);
}

std::int32_t gapAt(std::int32_t zoom) {
  return clamped(std::int64_t{zoom} * kGapAtNaturalZoom / 100);
}

}  // namespace

VSetScr normalSheet(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                    std::int32_t& zoom) {
  zoom = percentOf(printer, area, zoom);
  VSetScr screen = screenAt(page, printer, area, zoom);
  placeSheet(screen, printer, area, scaleOf(printer, area.dpi_x, area.dpi_y, zoom), gapAt(zoom));
  return screen;
}

VSetScr wideSheet(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                  const Extent& content, std::int32_t& zoom) {
  if (zoom <= 0) zoom = kNaturalZoom;
  VSetScr screen = screenAt(page, printer, area, zoom);
  const Scale scale = scaleOf(printer, area.dpi_x, area.dpi_y, zoom);
  screen.paper_width = truncated(printer.PhysicalWidth * scale.x);
  screen.paper_height = truncated(printer.PhysicalHeight * scale.y);
  screen.view_width =
      std::max(screen.paper_width, quotient(std::int64_t{content.Width} * zoom, 100));
  screen.view_height =
      std::max(screen.paper_height, quotient(std::int64_t{content.Height} * zoom, 100));
  screen.print_right = screen.view_width;
  screen.print_bottom = screen.view_height;
  return screen;
}

VSetScr scaledSheet(const VSetPage& page, const VSetPrn& printer, const ScreenArea& area,
                    std::int32_t percent) {
  VSetScr screen = screenAt(page, printer, area, percent);
  screen.dpi_x = quotient(std::int64_t{area.dpi_x} * 100, percent);
  screen.dpi_y = quotient(std::int64_t{area.dpi_y} * 100, percent);
  placeSheet(screen, printer, area, scaleOf(printer, screen.dpi_x, screen.dpi_y, kNaturalZoom),
             gapAt(percent));
  return screen;
}

ScrollBars barsFor(const ScreenArea& area, const Extent& shown, std::int32_t thickness) {
  const Extent& client = area.client;
  const bool wide = shown.Width > client.Width;
  const bool high = shown.Height > client.Height;
  return {high || (wide && shown.Height > client.Height - thickness),
          wide || (high && shown.Width > client.Width - thickness)};
}

ScreenArea areaBesideBars(const ScreenArea& area, const Extent& shown, std::int32_t thickness) {
  const ScrollBars bars = barsFor(area, shown, thickness);
  ScreenArea rest = area;
  if (bars.right) rest.client.Width = std::max(1, area.client.Width - thickness);
  if (bars.bottom) rest.client.Height = std::max(1, area.client.Height - thickness);
  return rest;
}

}  // namespace qor
