// Titles, languages and times of documents.
#include "document/report_information.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <utility>

#include "base/path.h"
#include "language/language.h"

namespace qor {
namespace {

std::time_t creationTime() {
  const char* fixed = std::getenv("SOURCE_DATE_EPOCH");
  if (fixed == nullptr) return std::time(nullptr);
  std::int64_t seconds = 0;
  const auto [end, error] = std::from_chars(fixed, fixed + std::strlen(fixed), seconds);
  return error == std::errc() ? seconds : std::time(nullptr);
}

const char* languageTagOf(int codePage) {
  switch (codePage) {
    case 866:
    case 1251: return "ru";
    case 857:
    case 1254: return "tr";
    default: return "";
  }
}

}  // namespace

PdfInformation informationOf(const RunOptions& run, std::string title, int codePage) {
  return {.title = std::move(title),
          .language = languageTagOf(codePage),
          .producer = run.program + " " + run.version,
          .created = creationTime()};
}

PdfInformation drawnInformationOf(const RunOptions& run, std::string title, int codePage) {
  PdfInformation information = informationOf(run, std::move(title), codePage);
  if (information.language.empty()) information.language = currentLanguage().id;
  information.tagged = true;
  return information;
}

std::string titleOf(const RunOptions& run) {
  return run.caption.empty() ? std::string(baseNameOf(run.report)) : run.caption;
}

}  // namespace qor
