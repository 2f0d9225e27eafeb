// Characters of the text symbologies; a character's value is its place.
#pragma once

#include <string_view>

namespace qor {

// Code 39 and Code 93.
inline constexpr std::string_view kCode39Alphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

}  // namespace qor
