// The printer that is always there: it makes PDF files.
#pragma once

#include <memory>

#include "platform/print/print_queues.h"

namespace qor {

inline constexpr const char* kPdfFilePrinter = "Microsoft Print to PDF";

std::unique_ptr<PrintQueues> makePdfFilePrinter();

}  // namespace qor
