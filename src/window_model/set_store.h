// What the settings dialog does with the set file in force, AppOptions.IniFileName, and with the
// set of it that is in force, AppOptions.SetName. All of it throws FileError and ListIndexError;
// files, and what is in force, then stay as they were.
#pragma once

#include <string>
#include <vector>

#include "document/vset.h"

namespace qor {

// The names of its sets; none where there is no file.
std::vector<std::string> namesOfSets();

// Makes another file the one in force, and its first set the set. Nothing is loaded.
void openSetFile(const std::string& path);

// Saves the set in that file under that name, "Default" where it is empty, and puts both in force.
// Nothing where no file is named.
void saveSetAs(const VSet& set, const std::string& name, const std::string& file);

// Puts the set of that name in force, whatever becomes of it, and loads it. One that can't be read
// whole leaves `set` as it was, and throws ConversionError, too.
void loadSetOf(const std::string& name, VSet& set);

// Removes the set that is in force from its file, and puts "Default" in force. Nothing where there
// is no file.
void deleteSetInForce();

// The lines of a set as they stand in the file, or else as they would be written; UTF-8.
std::vector<std::string> linesOfSet(const std::string& name, const VSet& set);

}  // namespace qor
