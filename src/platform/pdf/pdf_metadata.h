// What a document says of itself, in the form that archives ask for (PDF/A-2).
#pragma once

#include <ctime>
#include <string>

#include "platform/pdf/pdf_file.h"

namespace qor {

struct PdfInformation {
  std::string title;     // UTF-8
  std::string language;  // such as "tr", empty where it isn't known
  std::string producer;
  std::time_t created = 0;
  bool tagged = false;  // its texts can be told by lines, and each letter is known (level u, not b)
  bool archived = true;  // it keeps the rules of archives
};

// The dictionary of the trailer; its number.
PdfId writeInformation(PdfFile& file, const PdfInformation& information);

// The entries of the catalog for metadata, language and colours, beside what they refer to.
std::string writeMetadata(PdfFile& file, const PdfInformation& information);

}  // namespace qor
