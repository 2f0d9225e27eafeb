// What a printer offers to choose from, as the settings dialog lists it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "settings/printer_lists.h"

namespace qor {

// What a printer puts in the place of what was chosen.
struct PrinterValues {
  double PaperWidth = 0;  // mm
  double PaperHeight = 0;
  std::int32_t PrintColor = 0;

  bool operator==(const PrinterValues&) const = default;
};
PrinterValues printerValuesOf(const VSetPage& page);
void setPrinterValues(VSetPage& page, const PrinterValues& values);

// All lists are empty, and -1 stands for nothing selected, where there is no such printer.
struct PrinterChoices {
  ItemList papers;  // a size of the user's own first
  int paper = -1;
  ItemList bins;
  int bin = -1;
  std::optional<PrinterValues> replaced;  // those before, where the printer has changed them
};

// Lists what the printer offers and takes down its limits. A printer that is chosen brings its own
// paper size, turned as the page's orientation says, and its own colour; one that is merely looked
// at leaves those of the page.
enum class PrinterIs { chosen, lookedAt };
PrinterChoices choicesOf(const std::string& printer, PrinterIs is, std::string_view ownSize,
                         VSetPage& page);

}  // namespace qor
