// The colours of cells. Texts, numbers and dates each know some of the colours of a report, and not
// the same ones: spreadsheets of the suite have always come out so.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/canvas/color.h"
#include "platform/workbook/cell_formats.h"

namespace qor {

// The entry of the palette for a colour of a report; nothing for one that has none.
std::optional<std::int32_t> paletteEntryOf(Color colour);

// What it becomes in a cell with text; numbers and dates keep it.
std::int32_t textColourOf(std::int32_t entry);

// The format of so many decimals, 1 to 6, in this colour, and the colour that it then has.
struct DecimalLook {
  NumberFormat format;
  std::int32_t colour;
};
DecimalLook decimalLookOf(int decimals, std::int32_t entry);

}  // namespace qor
