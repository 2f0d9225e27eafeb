// The printer of the window.
#include "windows/view/preview_printer.h"

#include "base/app_options.h"
#include "base/units.h"
#include "document/vdoc.h"
#include "settings/print_scale.h"
#include "settings/printers.h"
#include "window_model/export_choices.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

void openPrinter(VDoc& doc, std::int32_t scale, bool scaled) {
  doc.PrintScale = scale;
  doc.PrintScaleFlag = scaled;
  UpdatePrintMetrics(AppOptions.PrinterName, doc.Settings.Page, scale, scaled);
}

ScaleQuestion questionOf(const ViewDesk& desk, std::int32_t zoom, const VDoc& doc) {
  return {desk.page_control->logicalDpiX(), zoom, doc.Settings.Scr.view_width};
}

}  // namespace

void openPrinterForView(const ViewDesk& desk, VDoc& doc) {
  const VSet& settings = doc.Settings;
  const ScaleQuestion question = questionOf(desk, zoomPercent(desk.state.ZoomID), doc);
  const auto scale = previewPrintScale(question, settings.Page, settings.Prn);
  openPrinter(doc, scale.value_or(doc.PrintScale), false);
}

void openPrinterUnscaled(VDoc& doc) {
  openPrinter(doc, kNaturalZoom, false);
}

void openPrinterScaled(const ViewDesk& desk, std::int32_t zoom, VDoc& doc) {
  // The printer may have been chosen just now.
  const ScaleQuestion question = questionOf(desk, zoom, doc);
  openPrinter(doc, ComputePrintScale(question, doc.Settings.Page, gDefaultPrn), true);
}

ExportView exportViewOf(const ViewDesk& desk, std::int32_t zoom, const VDoc& doc) {
  const VSetPrn& printer = doc.Settings.Prn;
  const std::int64_t pageWidth = doc.Settings.Scr.view_width;
  if (pageWidth == 0 || printer.LogPixelsX == 0 || zoom <= 0)
    return {kNaturalZoom, desk.firstPageWidth};
  const std::int64_t printable =
      std::int64_t{printer.HorzRes} * desk.page_control->logicalDpiX() / printer.LogPixelsX;
  return {clamped(zoom * printable / pageWidth), desk.firstPageWidth};
}

}  // namespace qor
