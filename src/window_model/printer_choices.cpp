// The choices of a printer.
#include "window_model/printer_choices.h"

#include "settings/printers.h"
#include "window_model/set_draft.h"

namespace qor {

PrinterValues printerValuesOf(const VSetPage& page) {
  return {page.PaperWidth, page.PaperHeight, page.PrintColor};
}

void setPrinterValues(VSetPage& page, const PrinterValues& values) {
  page.PaperWidth = values.PaperWidth;
  page.PaperHeight = values.PaperHeight;
  page.PrintColor = values.PrintColor;
}

PrinterChoices choicesOf(const std::string& printer, PrinterIs is, std::string_view ownSize,
                         VSetPage& page) {
  PrinterChoices choices;
  page.MinExtent = page.MaxExtent = {};
  if (printer.empty() || FindPrinter(printer) == nullptr) return choices;
  const PrinterValues before = printerValuesOf(page);
  choices.papers.emplace_back(ownSize);
  ListPapers(printer, choices.papers, &choices.paper, page);
  if (page.PaperSize == 0) choices.paper = 0;
  ListBins(printer, choices.bins, &choices.bin, page);
  if (is == PrinterIs::lookedAt) {
    setPrinterValues(page, before);
  } else {
    turnSheet(page);
    if (printerValuesOf(page) != before) choices.replaced = before;
  }
  return choices;
}

}  // namespace qor
