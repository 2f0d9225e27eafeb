// The printer that is always there: it makes PDF files.
#pragma once

#include <memory>
#include <string_view>

#include "platform/print/print_queues.h"

namespace qor {

inline constexpr const char* kPdfFilePrinter = "Microsoft Print to PDF";

// Whether that is its name, in whatever case.
bool isPdfFilePrinter(std::string_view name);

std::unique_ptr<PrintQueues> makePdfFilePrinter();

}  // namespace qor
