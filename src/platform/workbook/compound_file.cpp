// Loading the module that makes compound files.
#include "platform/workbook/compound_file.h"

#include "base/errors.h"
#include "platform/system/module.h"
#include "platform/system/output_file.h"

namespace qor {

void writeCompoundFile(OutputFile& file, const std::string& stream,
                       const std::function<void(ByteSink&)>& fill) {
  static auto* const write =
      reinterpret_cast<WriteCompound*>(moduleSymbol("qor_gsf", kWriteCompound));
  const auto failure = [&file](const std::string& reason) {
    return FileError(file.target() + ": " + reason, ErrorKind::cannotWrite);
  };
  if (write == nullptr) throw failure(moduleError());
  std::string reason;
  file.writeByStream([&](std::FILE* bytes) { write(bytes, stream, fill, reason); });
  if (!reason.empty()) throw failure(reason);
}

}  // namespace qor
