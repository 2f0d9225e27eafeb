// The cells of a table that stands in rows of plain text.
#pragma once

#include <string>
#include <vector>

namespace qor {

// A row of cells for each line, as many in each.
using CellRows = std::vector<std::vector<std::u32string>>;

// Columns stand apart where two columns of the text or more are blank in all rows; where a single
// one is, if there are figures on both sides in all rows and it doesn't part the digits of numbers,
// as in 28 355,85; and where bars stand. Bars, and rows of rules alone, are no cells.
CellRows cellsOf(const std::vector<std::u32string>& rows);

}  // namespace qor
