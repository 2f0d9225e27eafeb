// Cleaning up behind a report.
#include "app/side_files.h"

#include <string_view>

#include "base/app_options.h"
#include "base/path.h"
#include "base/text.h"
#include "platform/system/directory.h"
#include "window_model/mail_list.h"

namespace qor {
namespace {

using Names = std::vector<std::string>;

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
  deleteFiles({report}, made);
  if (listed == ListedFiles::erase) deleteFiles(filesOfLastMail(report), made);
  deleteFiles(sideFiles(report), made);
  enterDirectory(std::string(directoryOf(report)));
}

}  // namespace qor
