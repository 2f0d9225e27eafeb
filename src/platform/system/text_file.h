// Text files as editors write them: with a byte-order mark, or in the system's ANSI code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The text behind a byte-order mark of UTF-8 or UTF-16 as UTF-8; nothing where there is no mark.
// Wrong sequences of UTF-16 become U+FFFD.
std::optional<std::string> utf8ByMark(std::string_view bytes);

// The lines of a text, without their ends: CR LF, CR or LF.
std::vector<std::string> linesOf(std::string_view text);

}  // namespace qor
