// What the bytes of a text mean.
#pragma once

#include <array>

namespace qor {

// The code point of each byte.
using PdfEncoding = std::array<char32_t, 256>;

// The encoding of a code page by the system's tables; bytes that it lacks are U+FFFD.
PdfEncoding encodingOfCodePage(int codePage);

}  // namespace qor
