// What is copied of a selection: its rows as plain text whose columns stand under each other, and
// for a rectangle its cells, for programs that calculate. Texts are UTF-8.
#pragma once

#include <string>
#include <vector>

#include "window_model/cell_columns.h"
#include "window_model/text_selection.h"

namespace qor {

// The rows of a selection, on a grid (see TextGrid). Blank ones at both ends are left out; of a
// rectangle all: lines that only name texts with places of their own are blank.
std::vector<std::u32string> copiedRows(const TextMap& map, const TextSelection& selection);

// Lines with "\n" between them.
std::string plainText(const std::vector<std::u32string>& rows);

std::string tabSeparated(const CellRows& cells);
std::string htmlTable(const CellRows& cells);

}  // namespace qor
