// The sheet that a page lies on.
#pragma once

#include "document/vset.h"

namespace qor {

// A sheet as it lies, millimetres.
struct SheetSize {
  double width;
  double height;
};

// The sheet of the options, the same for pictures, paper and windows: the paper of their number, on
// its side for landscape; for 0, 256 and numbers that nobody knows, PaperWidth by PaperHeight.
SheetSize sheetSizeOf(const VSetPage& page);

// Whether that is a size of one's own, and not that of a paper with a number.
bool hasOwnSize(const VSetPage& page);

// The sheet of the options as a device of this resolution without unprintable edges.
VSetPrn sheetAsDevice(const VSetPage& page, int dpi);

// The sheet as a picture at 100 percent, on a display of `dpi` dots per inch: no gap around it.
VSetScr screenOf(const VSetPage& page, const VSetPrn& device, int dpi);

// The sheet while it is printed: nothing but the printer's resolution, and the margins as they are
// on a display of `dpi` dots per inch.
VSetScr screenForPrint(const VSetPage& page, const VSetPrn& device, int dpi);

}  // namespace qor
