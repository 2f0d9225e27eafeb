// Lists of papers, bins and fonts.
#include "settings/printer_lists.h"

#include <utility>

#include "platform/fonts/font_families.h"
#include "platform/print/print_system.h"
#include "settings/number_text.h"
#include "settings/printers.h"

namespace qor {
namespace {

Extent extentOf(MediaSize size) {
  return {tenthsOf(size.width), tenthsOf(size.length)};
}

void takePaperSize(const Printer& printer, VSetPage& page) {
  page.PaperWidth = printer.mode.dmPaperWidth / 10.0;
  page.PaperHeight = printer.mode.dmPaperLength / 10.0;
  page.PrintColor = printer.mode.dmColor;
}

}  // namespace

std::string numberText(int number) {
  return std::to_string(static_cast<std::uint16_t>(number));
}

std::string sizeText(double width, double height) {
  return FloatToStr(width) + " x " + FloatToStr(height) + " mm";
}

void ListPapers(const std::string& printerName, ItemList& items, int* selected, VSetPage& page) {
  const Printer* printer = FindPrinter(printerName);
  if (printer == nullptr) return;
  const auto [smallest, largest] = sizeLimits(*printer);
  page.MaxExtent = extentOf(largest);
  page.MinExtent = extentOf(smallest);
  if (page.PaperSize == kUserPaper) *selected = 0;
  takePaperSize(*printer, page);
  for (const Paper& paper : printer->papers) {
    const Extent size = extentOf(paper.media.size);
    items.push_back(numberText(paper.number) + "|" + paper.name + "   (" +
                    sizeText(size.Width / 10.0, size.Height / 10.0) + ")");
    if (paper.number == page.PaperSize) *selected = static_cast<int>(items.size()) - 1;
  }
}

void ListBins(const std::string& printerName, ItemList& items, int* selected, VSetPage& page) {
  const Printer* printer = FindPrinter(printerName);
  if (printer == nullptr) return;
  for (const Bin& bin : printer->bins) {
    items.push_back(numberText(bin.number) + "|" + bin.name);
    if (bin.number == page.PaperSource) *selected = static_cast<int>(items.size()) - 1;
  }
}

void ListPrinterFonts(ItemList& names, int charset) {
  names.clear();
  if (gPrinterMeasured) names = trueTypeFamilies(charset);
}

}  // namespace qor
