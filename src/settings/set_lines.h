// The lines of a set file, and the one way to read anything from a line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/system/output_file.h"

namespace qor {

// Finds the key anywhere in the line and takes the value behind the next "=" (or behind the key,
// where no "=" follows): between double quotes, else up to a blank. False without the key, and for
// a quote that doesn't end.
bool GetKeyValue(std::string_view line, std::string_view key, std::string& value);

// The lines of the file, without their ends, in the system's ANSI code page, which a byte-order
// mark at its start is turned into. Throws FileError for a file that can't be read.
std::vector<std::string> loadLines(const std::string& path);

// Writes the lines, each ended by CR LF, over the file. Throws FileError.
void saveLines(const std::string& path, const std::vector<std::string>& lines, LinkTarget link);

// Writes the lines over the set file in force; where that is the default one and a link, the link
// goes. Throws FileError.
void saveSetFile(const std::vector<std::string>& lines);

// The place of the header of the set, or the number of lines. `name` is in the file's encoding.
std::size_t findSetHeader(const std::vector<std::string>& lines, std::string_view name);

// Texts of the file are in the system's ANSI code page.
std::string fileText(std::string_view utf8);
std::string utf8OfFileText(std::string_view bytes);

}  // namespace qor
