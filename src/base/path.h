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

// The longest name of a file, in bytes.
inline constexpr std::size_t kMaxFileName = 255;

// The start of the names of the pictures beside a report: its directory and the file name up to the
// first point. A point in a directory's name doesn't count, so they never leave the directory. A
// name that leaves no room for what comes behind it is shortened.
std::string sideFileStem(std::string_view path);

// The name, or one that is longer than `limit` bytes (at least 20) as its start, "~" and a hash:
// different names stay different. UTF-8 is not cut within a character.
std::string shortenedName(std::string_view name, std::size_t limit);

// Fowler, Noll and Vo's hash of 64 bits, as 16 hexadecimal digits.
std::string hashText(std::string_view bytes);

}  // namespace qor
