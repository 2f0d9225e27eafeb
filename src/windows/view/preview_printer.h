// The printer as the window opens it for a document, to know what its pages stand on.
#pragma once

#include <cstdint>

namespace qor {

class VDoc;
struct ExportView;
struct ViewDesk;

// Opens it as the page on view would fill its paper.
void openPrinterForView(const ViewDesk& desk, VDoc& doc);

// Opens it at its own scale.
void openPrinterUnscaled(VDoc& doc);

// Opens it for a job whose pages are scaled to fill the paper as they fill the view at this zoom,
// in percent.
void openPrinterScaled(const ViewDesk& desk, std::int32_t zoom, VDoc& doc);

// What exports take from the page on view at this zoom, in percent.
ExportView exportViewOf(const ViewDesk& desk, std::int32_t zoom, const VDoc& doc);

}  // namespace qor
