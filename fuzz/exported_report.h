// What the targets of exports share: an export of any bytes, and a demand on what comes of it.
#pragma once

#include <cstdlib>
#include <string_view>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "export/export_task.h"
#include "scratch.h"

namespace qor::fuzz {

// Ends the process where it doesn't hold.
inline void demand(bool holds) {
  if (!holds) std::abort();
}

// Runs an export of the report to a file of this name.
template <class Run>
void exportReport(const Scratch& scratch, std::string_view bytes, int codePage, const char* target,
                  Run run) {
  AppOptions.DocCodePage = codePage;
  AppOptions.FileName = scratch.write("report.txt", bytes);
  VDoc doc;
  doc.ScanPages(false);
  ExportTask task = {doc, scratch.write(target, ""), runOptions()};
  run(task);
}

}  // namespace qor::fuzz
