// The texts of the preview window, and those of them that hold numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "language/language.h"

namespace qor {

// The text with the part, or the number, in the place of its "%".
std::string withText(std::string_view text, std::string_view part);
std::string withNumber(std::string_view text, std::int64_t number);

// Such as "Page 3 of 12", or "No pages"; and "   Page 3".
std::string pageOfText(int page, int total);
std::string pageListText(int page);

}  // namespace qor
