// How fast a long job goes.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace qor {

// Such as "120 pages a second, 8 s left", once the job has taken more than five seconds; empty
// before. `page` pages, at least one, of `pages` are done.
std::string jobSpeedText(std::int32_t page, std::int32_t pages, std::chrono::milliseconds taken);

}  // namespace qor
