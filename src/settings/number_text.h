// Numbers as set files write them.
#pragma once

#include <string>
#include <string_view>

namespace qor {

// The shortest general form with up to 15 significant digits and the locale's decimal mark: "210",
// "12,5", "1E20".
std::string FloatToStr(double value);

// Reads a number of any locale: the first "." or "," is the decimal mark, other blanks and commas
// are dropped, and the longest leading number counts; 0 if there is none.
double ParseDoubleAnyLocale(std::string_view text);

}  // namespace qor
