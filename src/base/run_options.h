// What a run was started with, as far as its exports and print jobs ask for it: what they say of
// the report, and where they put what belongs to it. All texts are UTF-8.
#pragma once

#include <string>

#include "base/app_options.h"

namespace qor {

struct RunOptions {
  std::string report;   // its file
  std::string caption;  // may be empty
  std::string printer;  // empty means the default printer
  std::string program;
  std::string version;
  bool drawn = false;  // PDF shows the pages as drawn
};

// Those of this process.
inline RunOptions runOptions() {
  return {AppOptions.FileName,    AppOptions.WindowCaption,  AppOptions.PrinterName,
          AppOptions.ProgramName, AppOptions.ProgramVersion, AppOptions.Drawn};
}

}  // namespace qor
