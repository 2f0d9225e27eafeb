// The scales that make a page, as it stands on the screen, fill the paper.
#pragma once

#include <cstdint>
#include <optional>

#include "document/vset.h"

namespace qor {

struct ScaleQuestion {
  std::int32_t screenDpi = 0;  // across
  std::int32_t zoom = 100;     // of the preview, percent; -1 and -2 for the automatic ones
  std::int32_t pageWidth = 0;  // of the page as drawn at that zoom, pixels
};

// For a print job, in percent. 100 for a page that isn't drawn; negative for the automatic zooms.
std::int32_t ComputePrintScale(const ScaleQuestion& question, const VSetPage& page,
                               const VSetPrn& printer);

// For the printer that a view opens, in percent; nothing for a page that isn't drawn.
std::optional<std::int32_t> previewPrintScale(const ScaleQuestion& question, const VSetPage& page,
                                              const VSetPrn& printer);

}  // namespace qor
