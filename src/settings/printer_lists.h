// What the settings dialog lets the user choose from. It takes the numbers back out of the texts:
// an item starts with its Windows number and "|".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/vset.h"

namespace qor {

using ItemList = std::vector<std::string>;

// Appends the papers, "9|A4   (210 x 297 mm)", and takes down the limits and the paper size of the
// printer in the options. `selected` becomes the place of the paper of the options, 0 for a size of
// the user's own, and stays where the printer has no such paper. An unknown printer does nothing.
void ListPapers(const std::string& printerName, ItemList& items, int* selected, VSetPage& page);

// Appends the paper sources, "15|Automatically Select".
void ListBins(const std::string& printerName, ItemList& items, int* selected, VSetPage& page);

// Names of the TrueType families that the measured printer prints in a Windows character set.
void ListPrinterFonts(ItemList& names, int charset);

// Paper and bin numbers are shown as the print system's 16 bits without a sign.
std::string numberText(int number);

// "210 x 297 mm".
std::string sizeText(double width, double height);

}  // namespace qor
