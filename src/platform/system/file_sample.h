// A look at the bytes of a file here and there, which tells another text from the same one grown.
#pragma once

#include <cstdint>
#include <string>

namespace qor {

class InputFile;

// Blocks at even distances over the first `size` bytes; fewer bytes where the file is shorter.
// Throws FileError.
std::string sampleOf(const InputFile& file, std::uint64_t size);

}  // namespace qor
