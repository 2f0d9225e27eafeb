// A print job as the scheduler hands it to a filter (man 7 filter). Copies and pages are the
// business of filters behind this one.
#pragma once

#include <string>

namespace qor {

inline constexpr const char* kCodePageOption = "qor-codepage";
inline constexpr const char* kSettingsOption = "qor-settings";

struct FilterJob {
  std::string title;
  std::string file;     // empty: the standard input
  int codePage = 0;     // 0: that of the system
  std::string setName;  // empty: none
};

// Of "job user title copies options [file]". Throws UsageError.
FilterJob readFilterJob(int argc, char** argv);

}  // namespace qor
