// What qorexport is told.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "export/page_ranges.h"
#include "platform/system/child_runs.h"

namespace qor {

// A kind of file by the name that --to takes.
struct BulkFormat {
  std::string_view name;
  std::string_view extension;  // of its files, with the point
  bool drawn = false;          // pages as they are drawn
  bool pictures = false;       // a file a page
};

enum class BulkTask { exports, help, version };

struct BulkOptions {
  BulkTask task = BulkTask::exports;
  std::vector<std::string> reports;  // "-" is the standard input
  std::string list;                  // a file with more of them, "-" for the standard input
  BulkFormat format;
  std::string target = "{stem}.{ext}";
  int codePage = 0;  // 0: that of the system
  std::string setFile;
  std::string setName;
  PageRanges pages;
  std::size_t jobs = 1;
  bool ifNewer = false;
  bool failFast = false;
  bool progress = false;
  bool json = false;
  ChildLimits limits;
};

// Throws UsageError.
BulkOptions readBulkOptions(int argc, char** argv);

// The text of --help.
std::string bulkHelp();

}  // namespace qor
