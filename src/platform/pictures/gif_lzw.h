// The compression of GIF files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace qor {

// The indices of up to `count` pixels: fewer where the data ends or goes wrong before. `data`
// starts with the size of the first codes and goes on with blocks, each led by its length. Other
// programs write sizes up to 11, where 8 is the most that 256 colours need.
std::vector<std::uint8_t> unpackGifPixels(std::string_view data, std::size_t count);

}  // namespace qor
