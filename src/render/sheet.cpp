// Sheet geometry.
#include "render/sheet.h"

#include <algorithm>
#include <utility>

#include "base/units.h"
#include "platform/print/paper_table.h"

namespace qor {
namespace {

// Null for a size of one's own.
const PaperRow* paperOf(const VSetPage& page) {
  const auto rows = paperTable();
  const auto row = std::find_if(rows.begin(), rows.end(), [&page](const PaperRow& candidate) {
    return candidate.number == page.PaperSize;
  });
  return row == rows.end() ? nullptr : &*row;
}

VSetScr withMargins(VSetScr screen, const VSetPage& page, int dpi) {
  screen.margin_left = pixelsFromMillimetres(page.MarginLeft, dpi);
  screen.margin_top = pixelsFromMillimetres(page.MarginTop, dpi);
  return screen;
}

}  // namespace

bool hasOwnSize(const VSetPage& page) {
  return paperOf(page) == nullptr;
}

SheetSize sheetSizeOf(const VSetPage& page) {
  const PaperRow* paper = paperOf(page);
  // Sizes of one's own are stored as the sheet lies.
  if (paper == nullptr) return {page.PaperWidth, page.PaperHeight};
  const MediaSize size = sizeOf(*paper);
  SheetSize sheet = {size.width / kHundredthsPerMillimetre, size.length / kHundredthsPerMillimetre};
  if (page.landscape()) std::swap(sheet.width, sheet.height);
  return sheet;
}

VSetPrn sheetAsDevice(const VSetPage& page, int dpi) {
  const auto [width, height] = sheetSizeOf(page);
  VSetPrn sheet;
  sheet.Orientation = width < height ? 1 : 2;
  sheet.HorzSize = truncated(width);
  sheet.VertSize = truncated(height);
  sheet.LogPixelsX = sheet.LogPixelsY = dpi;
  sheet.HorzRes = sheet.PhysicalWidth = pixelsFromMillimetres(width, dpi);
  sheet.VertRes = sheet.PhysicalHeight = pixelsFromMillimetres(height, dpi);
  return sheet;
}

VSetScr screenForPrint(const VSetPage& page, const VSetPrn& device, int dpi) {
  VSetScr screen;
  screen.ref_dpi_x = device.LogPixelsX;
  screen.ref_dpi_y = device.LogPixelsY;
  return withMargins(screen, page, dpi);
}

VSetScr screenOf(const VSetPage& page, const VSetPrn& device, int dpi) {
  const double scaleX = device.LogPixelsX > 0 ? double(dpi) / device.LogPixelsX : 0;
  const double scaleY = device.LogPixelsY > 0 ? double(dpi) / device.LogPixelsY : 0;
  VSetScr screen;
  screen.dpi_x = screen.dpi_y = dpi;
  screen.ref_dpi_x = device.LogPixelsX;
  screen.ref_dpi_y = device.LogPixelsY;
  screen.view_width = screen.paper_width = truncated(device.PhysicalWidth * scaleX);
  screen.view_height = screen.paper_height = truncated(device.PhysicalHeight * scaleY);
  screen.print_left = truncated(device.PhysicalOffsetX * scaleX);
  screen.print_top = truncated(device.PhysicalOffsetY * scaleY);
  screen.print_right = truncated(device.HorzRes * scaleX) + screen.print_left;
  screen.print_bottom = truncated(device.VertRes * scaleY) + screen.print_top;
  return withMargins(screen, page, dpi);
}

}  // namespace qor
