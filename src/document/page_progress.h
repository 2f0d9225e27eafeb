// How whatever goes through pages one by one tells how far it is.
#pragma once

#include <cstdint>
#include <functional>

namespace qor {

// Called behind each page with how many are done, from 1, and how many there are. False stops.
using PageProgress = std::function<bool(std::int32_t page, std::int32_t pages)>;

}  // namespace qor
