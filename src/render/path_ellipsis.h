// Shortening file names to a width.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qor {

// The text, or where it is wider than `room` its start and "..." before its last path component, or
// where that alone is too wide, the start of "..." and that component. `advance` is the width of a
// character.
std::u32string withPathEllipsis(std::u32string_view text, double room,
                                const std::function<double(char32_t)>& advance);

}  // namespace qor
