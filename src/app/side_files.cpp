// Cleaning up behind a report.
#include "app/side_files.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "base/app_options.h"
#include "base/path.h"
#include "base/text.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/text_file.h"
#include "settings/set_lines.h"

namespace qor {
namespace {

constexpr std::uint64_t kMaxListFile = 16U << 20;

using Names = std::vector<std::string>;

// Deletes files, but none of those that the run has made.
class Deletion {
 public:
  explicit Deletion(const Names& made) : made_(made) {}

  void operator()(const std::string& name) const {
    const bool isMade = std::any_of(made_.begin(), made_.end(), [&name](const std::string& file) {
      return isSameFile(file, name);
    });
    if (!isMade) deleteFile(name);
  }

 private:
  const Names& made_;
};

// The lines of the report's list file: its name up to the first point, and "_mail.tmp".
Names listedFiles(const std::string& report) {
  std::string name(directoryOf(report));
  name.append(upTo(fileNameOf(report), '.')).append("_mail.tmp");
  const std::string bytes = readWholeFile(name, kMaxListFile).value_or("");
  Names names = linesOf(utf8ByMark(bytes).value_or(utf8OfFileText(bytes)));
  std::erase_if(names, [](const std::string& line) { return line.empty(); });
  return names;
}

// The files beside the report whose names are its base name, "_" and anything with a point; where
// that is too long for the names of pictures, what stands for it there.
Names sideFiles(const std::string& report) {
  const std::string directory(directoryOf(report));
  Names files = filesStartingWith(directory, std::string(baseNameOf(report)) + "_");
  const std::string stem = sideFileStem(report);
  if (upTo(fileNameOf(report), '.') == fileNameOf(stem)) return files;
  const Names more = filesStartingWith(directory, std::string(fileNameOf(stem)) + "_");
  files.insert(files.end(), more.begin(), more.end());
  return files;
}

}  // namespace

UsedReport::UsedReport() : stamp_(fileStamp(AppOptions.FileName)) {
}

void UsedReport::cleanUp(ListedFiles listed, const Names& made) const {
  const std::string& report = AppOptions.FileName;
  if (!AppOptions.DeleteAfterPrint || !stamp_ || fileStamp(report) != stamp_) return;
  const Deletion erase(made);
  erase(report);
  if (listed == ListedFiles::erase) {
    for (const std::string& name : listedFiles(report)) erase(withSystemSeparators(name));
  }
  for (const std::string& name : sideFiles(report)) erase(name);
  enterDirectory(std::string(directoryOf(report)));
}

}  // namespace qor
