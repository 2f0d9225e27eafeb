// What the bytes of a report say of how they want to be read.
#pragma once

#include <cstdint>
#include <string_view>

namespace qor {

class VDoc;
class VDocPage;

struct TextKind {
  bool utf8 = false;           // with letters beyond ASCII
  bool lineFeedsOnly = false;  // its lines end without CR
};

// The kind of the bytes at the start of a text; a character that their end cuts off counts as
// whole.
TextKind kindOf(std::string_view bytes);

// The same of the report's first page. Throws FileError where it can't be read.
TextKind kindOfFirstPage(VDoc& doc);

// Letters of the loaded page that the code page at hand has no characters for, so that their places
// stay empty: LoadCodePage must have been called.
std::int32_t lettersLeftOut(const VDocPage& page);

}  // namespace qor
