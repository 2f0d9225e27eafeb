// Cleaning up behind a report.
#include "app/side_files.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/app_options.h"
#include "base/path.h"
#include "base/text.h"
#include "platform/directory.h"
#include "platform/input_file.h"

namespace qor {
namespace {

constexpr std::uint64_t kMaxListFile = 16U << 20;

// Deletes the files named, line by line, in the report's list file: its full name up to the first
// point, wherever that is, and "_mail.tmp".
void DeleteListedFiles(const std::string& dataFile) {
  const std::string listFile = std::string(upTo(dataFile, '.')) + "_mail.tmp";
  const std::string list = readWholeFile(listFile, kMaxListFile).value_or("");
  for (std::string_view rest = list; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
    if (!line.empty()) deleteFile(std::string(line));
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
  }
}

// Deletes the files beside the report whose names are its base name, "_" and anything with a point.
void DeleteSideFiles(const std::string& dataFile) {
  const std::string directory(directoryOf(dataFile));
  const std::string prefix = std::string(baseNameOf(dataFile)) + "_";
  for (const std::string& file : filesStartingWith(directory, prefix)) deleteFile(file);
  enterDirectory(directory);
}

}  // namespace

void DeleteReport(ListedFiles listed) {
  const std::string& report = AppOptions.FileName;
  if (!AppOptions.DeleteAfterPrint || !fileExists(report)) return;
  deleteFile(report);
  if (listed == ListedFiles::erase) DeleteListedFiles(report);
  DeleteSideFiles(report);
}

}  // namespace qor
