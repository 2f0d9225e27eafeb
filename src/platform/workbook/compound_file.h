// A compound file (MS-CFB) of one stream, made by a library in a module of its own: only runs that
// write one pay for its start.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "platform/system/byte_sink.h"

namespace qor {

class OutputFile;

// Writes a stream of this name, the bytes that `fill` gives, into the file. Throws what `fill`
// throws, and FileError, also where the module isn't there.
void writeCompoundFile(OutputFile& file, const std::string& stream,
                       const std::function<void(ByteSink&)>& fill);

// What the module offers under this name, for the loader: it writes to the C stream, and says why
// it couldn't, or nothing.
using WriteCompound = void(std::FILE* file, const std::string& stream,
                           const std::function<void(ByteSink&)>& fill, std::string& reason);
inline constexpr const char* kWriteCompound = "qorWriteCompound";

}  // namespace qor
