// File names as texts. "/" and "\" both separate, because reports and command lines carry both.
#pragma once

#include <string>
#include <string_view>

namespace qor {

bool hasSeparator(std::string_view path);

// The directory with its closing separator, empty where the path has none.
std::string_view directoryOf(std::string_view path);
std::string_view fileNameOf(std::string_view path);

// From the last point of the file name on, point included; empty where the name has none.
std::string_view extensionOf(std::string_view path);

// The file name without its extension.
std::string_view baseNameOf(std::string_view path);

// The start of the names of the pictures beside a report: its directory and the file name up to the
// first point. A point in a directory's name doesn't count, so they never leave the directory.
std::string_view sideFileStem(std::string_view path);

}  // namespace qor
