// The code page of the report: how its bytes of 128 and above become Unicode when they are drawn.
#pragma once

#include <string_view>

#include "document/code_page_tables.h"

namespace qor {

// What the last LoadCodePage left: entry i is the Unicode value of byte 128 + i.
inline CodePageEntries CodePageTable{};

// Fills CodePageTable. Code pages 866, 1251, 1254 and 857 are built in; 437, 850 and 1252 count as
// plain ASCII and leave zeros; any other is read from "cp<number>.ini" in the current directory or,
// where there is none, taken from the system's tables of one byte a character. Throws
// NumberedError and sets LastError where neither can be had.
void LoadCodePage(int codePage);

// Whether there is such a table or file.
bool isKnownCodePage(int codePage);

// The name of the code page in an HTML header, empty where it has none there.
std::string_view CodePageName(int codePage);

}  // namespace qor
