// A report and the files that belong to it and go with it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/system/file_stamp.h"

namespace qor {

enum class ListedFiles { keep, erase };

// The report as the run found it. What a run ends with it cleans up behind itself: a report that
// nobody has seen, printed or exported stays, and so this is called only where somebody has.
class UsedReport {
 public:
  // Looks at the report of AppOptions.FileName, before it is read.
  UsedReport();

  // Under AppOptions.DeleteAfterPrint, deletes the report, the side files beside it and, where a
  // user has seen it, the files that its list file names; none of these where the report is another
  // one than before. The files that the run has made itself stay. The current directory becomes the
  // report's.
  void cleanUp(ListedFiles listed, const std::vector<std::string>& made) const;

 private:
  std::optional<FileStamp> stamp_;
};

}  // namespace qor
