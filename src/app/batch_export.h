// The export of a run without a window: by this process, or by several that make the pictures of
// its pages.
#pragma once

#include <functional>

#include "export/export_task.h"

namespace qor {

struct BatchExport {
  bool succeeded = false;  // else the report stays, also under DeleteAfterPrint
  std::int32_t pages = 0;  // of the report
  ExportFileList files{};  // that it wrote
};

// Raises the wall and exports the report of the run. Failures without a number are thrown.
BatchExport exportHere(const std::function<void()>& raiseWall);

// True where the machine has processors for several processes, and the report has work for them.
bool isSharedExport();

// The same by a process for each processor. What any of them has to tell is told once.
BatchExport exportInShares(const std::function<void()>& raiseWall);

}  // namespace qor
