// Colours as reports write them. All are 0x00BBGGRR.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/font_state.h"

namespace qor {

// By exact name, such as "Navy"; an unknown name is black.
Color ColorByName(std::string_view name);

// By place in the list of names, 0 to 17; anything else is black.
Color ColorByIndex(std::int32_t index);

// The 256-colour form exists in the language and has always been black.
Color Color256(std::int32_t index);

// "r,g,b", each part cut to its low 8 bits. Without a comma black; parts behind one that can't be
// read stay 0; with one comma only the red counts.
Color ColorFromRgb(std::string_view text);

}  // namespace qor
