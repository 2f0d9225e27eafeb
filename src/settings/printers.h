// The printers of the system as settings know them: the default one, measurements, and device
// contexts for a page's options. An empty printer name means the default printer everywhere.
#pragma once

#include <memory>
#include <string>

#include "document/vset.h"
#include "platform/print/print_context.h"

namespace qor {

inline VSetPrn gDefaultPrn;  // the default printer, or the one selected in its place
inline bool gPrinterMeasured = false;

// What the last measuring or print context reported: the orientation of the device mode, and dots
// per inch scaled where a scale was asked.
inline SheetMeasures gPrintMetrics;

// Looks for printers anew and measures the default one.
void InitPrinters();

// The session's default printer, else the system's; there always is one.
std::string GetDefaultPrinterName();

// Null where there is no such printer. Valid until printers are looked for anew.
const Printer* FindPrinter(const std::string& name);

// Takes down the measurements of a printer as it is set up.
void MeasurePrinter(const Printer& printer, VSetPrn& measures);

// Finds and measures a printer, into gDefaultPrn where no target is given. Gives gPrinterMeasured:
// true once any printer was measured.
bool MeasureNamedPrinter(const std::string& name, VSetPrn* target);
bool MeasureDefaultPrinter();

// Fills gPrintMetrics for a printer set up with these options. 1, or 0 where there is no such
// printer.
int UpdatePrintMetrics(const std::string& printerName, const VSetPage& page, int scalePercent,
                       bool scaleFlag);

// Takes what gPrintMetrics holds over into the measurements of a printer; nothing where it holds
// none.
void TakePrintMetrics(VSetPrn& measures);

// Does as UpdatePrintMetrics and gives the context to print in, or null.
std::unique_ptr<PrintContext> CreatePrintDC(const std::string& printerName, const VSetPage& page,
                                            int scalePercent, bool scaleFlag);

}  // namespace qor
