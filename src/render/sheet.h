// The sheet that a page lies on, where no printer tells its measurements.
#pragma once

#include "document/vset.h"

namespace qor {

// The paper of the options as a device of this resolution without unprintable edges.
VSetPrn sheetOf(const VSetPage& page, int dpi);

// The sheet as a picture at 100 percent, on a display of `dpi` dots per inch: no gap around it.
VSetScr screenOf(const VSetPage& page, const VSetPrn& device, int dpi);

// The sheet while it is printed: nothing but the printer's resolution, and the margins as they are
// on a display of `dpi` dots per inch.
VSetScr screenForPrint(const VSetPage& page, const VSetPrn& device, int dpi);

}  // namespace qor
