// Measuring printers, and device modes made of page options.
#include "settings/printers.h"

#include "base/text.h"
#include "base/units.h"
#include "platform/print/print_system.h"
#include "render/sheet.h"

namespace qor {
namespace {

// Measuring and printing build their device modes alike but for the sign of the copies.
enum class Purpose { measure, print };

// Names in the measurements are no longer than the suite's programs keep.
constexpr std::size_t kMaxName = 127;

int tenths(double millimetres) {
  return truncated(millimetres * 10);
}

// A size of one's own goes as that of the upright sheet. Where the printer knows its number all the
// same, that is what it takes.
void setPaper(DeviceMode& mode, const VSetPage& page) {
  mode.dmFields |= DM_PAPERSIZE;
  mode.dmPaperSize = page.PaperSize == 0 ? kUserPaper : page.PaperSize;
  if (!hasOwnSize(page)) return;
  mode.dmFields |= DM_PAPERLENGTH | DM_PAPERWIDTH;
  const bool turned = mode.dmOrientation == kLandscape;
  const SheetSize sheet = sheetSizeOf(page);
  mode.dmPaperLength = tenths(turned ? sheet.width : sheet.height);
  mode.dmPaperWidth = tenths(turned ? sheet.height : sheet.width);
}

DeviceMode deviceModeOf(const Printer& printer, const VSetPage& page, Purpose purpose) {
  DeviceMode mode = printer.mode;
  mode.dmFields = 0;
  if (page.Orientation != 0) {
    mode.dmFields |= DM_ORIENTATION;
    mode.dmOrientation = page.landscape() ? kLandscape : kPortrait;
  }
  if (page.PaperSize != printer.mode.dmPaperSize) setPaper(mode, page);
  if (page.NumOfCopies != 1) {
    mode.dmFields |= DM_COPIES;
    mode.dmCopies =
        purpose == Purpose::measure ? clamped(-std::int64_t{page.NumOfCopies}) : page.NumOfCopies;
  }
  if (page.PaperSource != kFormSource) {
    mode.dmFields |= DM_DEFAULTSOURCE;
    mode.dmDefaultSource = page.PaperSource;
  }
  if (page.SortByCopies) {
    mode.dmFields |= DM_COLLATE;
    mode.dmCollate = 1;
  }
  if (page.PrintQuality != 0) {
    mode.dmFields |= DM_PRINTQUALITY;
    mode.dmPrintQuality = -page.PrintQuality;
  }
  if (page.PrintColor != 0) {
    mode.dmFields |= DM_COLOR;
    mode.dmColor = page.PrintColor;
  }
  return mode;
}

std::int32_t scaled(std::int32_t dotsPerInch, int percent, bool scale) {
  return scale ? clamped(std::int64_t{dotsPerInch} * percent / 100) : dotsPerInch;
}

SheetMeasures metricsOf(const DeviceMode& mode, const DeviceCaps& caps, int percent, bool scale) {
  SheetMeasures metrics = caps;
  metrics.Orientation = mode.dmOrientation;
  metrics.LogPixelsX = scaled(caps.LogPixelsX, percent, scale);
  metrics.LogPixelsY = scaled(caps.LogPixelsY, percent, scale);
  return metrics;
}

SheetMeasures& sheetMeasures(VSetPrn& measures) {
  return measures;
}

}  // namespace

void InitPrinters() {
  printSystem().refresh();
  gPrinterMeasured = false;
  MeasureDefaultPrinter();
}

std::string GetDefaultPrinterName() {
  return printSystem().defaultName();
}

const Printer* FindPrinter(const std::string& name) {
  return printSystem().find(name.empty() ? GetDefaultPrinterName() : name);
}

void MeasurePrinter(const Printer& printer, VSetPrn& measures) {
  const DeviceCaps caps = deviceCaps(printer, printer.mode);
  sheetMeasures(measures) = caps;
  measures.Orientation = caps.HorzSize < caps.VertSize ? kPortrait : kLandscape;
  measures.ResolutionX = printer.mode.dmPrintQuality;
  measures.ResolutionY = printer.mode.dmColor;
  measures.DeviceName = printer.name.substr(0, kMaxName);
  measures.PortName = upTo(printer.port, ',').substr(0, kMaxName);
  gPrinterMeasured = true;
}

bool MeasureNamedPrinter(const std::string& name, VSetPrn* target) {
  const Printer* printer = FindPrinter(name);
  if (printer != nullptr) MeasurePrinter(*printer, target == nullptr ? gDefaultPrn : *target);
  return gPrinterMeasured;
}

bool MeasureDefaultPrinter() {
  return MeasureNamedPrinter({}, nullptr);
}

int UpdatePrintMetrics(const std::string& printerName, const VSetPage& page, int scalePercent,
                       bool scaleFlag) {
  const Printer* printer = FindPrinter(printerName);
  if (printer == nullptr) return 0;
  const DeviceMode mode = deviceModeOf(*printer, page, Purpose::measure);
  gPrintMetrics = metricsOf(mode, deviceCaps(*printer, mode), scalePercent, scaleFlag);
  return 1;
}

void TakePrintMetrics(VSetPrn& measures) {
  SheetMeasures taken = gPrintMetrics;
  if (taken.LogPixelsX == 0 || taken.LogPixelsY == 0) return;
  taken.Orientation = measures.Orientation;
  sheetMeasures(measures) = taken;
}

std::unique_ptr<PrintContext> CreatePrintDC(const std::string& printerName, const VSetPage& page,
                                            int scalePercent, bool scaleFlag) {
  const Printer* printer = FindPrinter(printerName);
  if (printer == nullptr) return nullptr;
  auto context =
      std::make_unique<PrintContext>(*printer, deviceModeOf(*printer, page, Purpose::print));
  gPrintMetrics = metricsOf(context->mode(), context->caps(), scalePercent, scaleFlag);
  return context;
}

}  // namespace qor
