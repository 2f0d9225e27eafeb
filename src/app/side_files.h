// The files that belong to a report and go with it.
#pragma once

#include <string>

namespace qor {

// Deletes the files named, line by line, in the report's list file: its full name up to the first
// point, wherever that is, and "_mail.tmp".
void DeleteListedFiles(const std::string& dataFile);

// Deletes the files beside the report whose names are its base name, "_" and anything with a point.
// The current directory becomes the report's.
void DeleteSideFiles(const std::string& dataFile);

// Under AppOptions.DeleteAfterPrint, deletes the report if it is there, its side files and, where a
// user has seen it, its listed files.
enum class ListedFiles { keep, erase };
void DeleteReport(ListedFiles listed);

}  // namespace qor
