// Run lengths of bitmaps.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/pictures/picture_codecs.h"

namespace qor {

// The indices of the pixels, one byte each, rows in the order of the file; nothing where the data
// ends inside of a run. What no run reaches is 0.
std::optional<std::string> unpackRuns(const DibHeader& header, std::string_view data);

}  // namespace qor
