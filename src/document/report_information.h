// What documents that are made of a report say of it.
#pragma once

#include <string>

#include "base/run_options.h"
#include "platform/pdf/pdf_metadata.h"

namespace qor {

// The language is that of texts in the code page, where it tells one. The time is now, or that of
// SOURCE_DATE_EPOCH: builders of packages make the same documents of the same report with it.
PdfInformation informationOf(const RunOptions& run, std::string title, int codePage);

// The same of pages as drawn, whose lines readers can tell. The language of the interface stands in
// where the code page tells none.
PdfInformation drawnInformationOf(const RunOptions& run, std::string title, int codePage);

// What the run calls the report: its caption, else its name.
std::string titleOf(const RunOptions& run);

}  // namespace qor
