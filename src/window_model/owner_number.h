// The number that the owner's window knows a report by.
#pragma once

#include <cstdint>
#include <string_view>

namespace qor {

// The number in the four characters before the last point of the report's name; 0 where there is
// none.
std::int32_t ownerNumber(std::string_view fileName);

}  // namespace qor
