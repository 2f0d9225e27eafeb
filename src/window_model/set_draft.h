// The settings dialog's own copy of a document's settings, and what its buttons do with it. Nothing
// reaches the document before applyDraft.
#pragma once

#include <cstdint>
#include <string>

#include "document/vset.h"

namespace qor {

class VDoc;

struct SetDraft {
  VSet set;
  std::int32_t ScalePercent = 100;  // of print jobs
  bool ScaleFlag = false;           // pages are scaled to the paper
};

SetDraft draftOf(const VDoc& doc);

// Takes down the system's default printer, and chooses the one of the options, or else that.
void choosePrinterOfRun(VSet& set);

// Makes the document's settings those of the draft, and `printer`, as the dialog names it, the one
// of the run: the default printer goes without a name and without a scale.
void applyDraft(const SetDraft& draft, const std::string& printer, VDoc& doc);

// Back to what is usual. Order and paper source stay with the print options; those of the page
// bring the print options along.
void resetPrinter(VSet& set);
void resetPrintOptions(VSetPage& page);
void resetPageOptions(VSetPage& page);

// Turns a sheet that lies otherwise than the orientation says: 1 portrait, 2 landscape, 0 as it is.
// What becomes the height loses its fraction of a millimetre on the way.
void turnSheet(VSetPage& page);

}  // namespace qor
