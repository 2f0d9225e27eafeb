// The picture files that a report names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qor {

// The bytes of a file by its name as the report has it, in the document's code page. A name with
// "\" is tried with "/" where it is not found. Nothing for files that can't be read.
std::optional<std::string> readNamedFile(std::string_view fileName, int codePage);

// The same, and nothing for names without the extension of a picture.
std::optional<std::string> readPictureFile(std::string_view fileName, int codePage);

}  // namespace qor
