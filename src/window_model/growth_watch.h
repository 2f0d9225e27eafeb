// Follows a report that another program is writing, and knows whether the file is still the one
// that was indexed. Order of calls: noteFile whenever the pages were indexed; follow, then tick
// whenever some time has passed, until the report is complete.
#pragma once

#include <optional>

#include "platform/system/file_stamp.h"

namespace qor {

class VDoc;

enum class Growth { none, pages, complete };

enum class FileState { asIndexed, changed, gone };

class GrowthWatch {
 public:
  // From now on the pages that are known are those of the file of AppOptions.FileName as it is.
  void noteFile();

  // True until the writer has ended the report, or nobody wants to follow it any longer.
  void follow() { follows_ = true; }
  void stop() { follows_ = false; }
  bool isFollowing() const { return follows_; }

  // Indexes what has come since; nothing for a document that isn't there. Throws what ScanPages
  // throws: the pages that are known then make no sense.
  Growth tick(VDoc* doc);

  // Every second tick, to tell that more is to come.
  bool blinks() const { return blinks_; }

  // A file that was not there then, and isn't now, is as it was indexed.
  FileState fileState() const;

  // Whether there is a file, and it is still that one.
  bool isThere() const { return stamp_ && fileState() == FileState::asIndexed; }

 private:
  std::optional<FileStamp> stamp_;
  bool follows_ = false;
  bool blinks_ = false;
};

}  // namespace qor
