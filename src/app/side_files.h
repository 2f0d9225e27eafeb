// A report and the files that belong to it and go with it.
#pragma once

namespace qor {

enum class ListedFiles { keep, erase };

// Under AppOptions.DeleteAfterPrint, deletes the report if it is there, the side files beside it
// and, where a user has seen it, the files that its list file names. The current directory becomes
// the report's.
void DeleteReport(ListedFiles listed);

}  // namespace qor
