// What became of a print job.
#pragma once

#include <string>

namespace qor {

struct PrintOutcome {
  enum class End {
    printed,
    noPages,    // none in the report, or none of those that were asked for
    noPrinter,  // of that name, or the print system doesn't answer
    refused,    // by the printer or its system
    fileLost,   // the file of the job couldn't be written
    stopped     // by the user
  };

  End end = End::printed;
  std::string notice;  // one line for the user; empty where there is nothing to tell
  std::string file;    // that holds the pages, where they went to one

  // True where nobody got anything of the report although nobody refused it.
  bool cameToNothing() const {
    return end == End::noPages || end == End::fileLost || end == End::stopped;
  }
};

}  // namespace qor
