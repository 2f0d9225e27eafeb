// Telling the window that started the viewer.
#pragma once

#include <cstdint>

namespace qor {

inline constexpr std::uint32_t kViewerClosed = 0x8001;  // number of the message

// Posts the message to a window of the desktop, with a number and the window's own handle as its
// data: on X a ClientMessage of format 32 whose type is the message's number. A window that is gone
// or no desktop is no failure.
void notifyOwner(std::uint64_t window, std::uint32_t message, std::int32_t number);

}  // namespace qor
