// The options of the command line. There is no tokeniser: the whole parameter string is searched
// for each option in turn, and options with a value are cut out of it.
#pragma once

#include <string>
#include <string_view>

namespace qor {

// What the command line asks for.
enum RunMode : int { kRunStop = -1, kRunPrint = 0, kRunPreview = 1, kRunExport = 2 };

// The parameter string of the process: the arguments joined by blanks, those that are empty or hold
// a blank in double quotes.
std::string parameterString(int argc, const char* const* argv);

// Whether the parameters ask for neither printing nor exporting without a window.
bool asksForWindow(std::string_view parameters);

// Fills AppOptions from a parameter string that is not empty. Tells the user about missing files
// and shows the help; kRunStop when that ends the run.
RunMode ParseCommandLine(std::string parameters);

// Finds the key, takes the value behind it and cuts both out of the parameters. False without the
// key, and for a quote that doesn't end; the parameters then stay.
bool GetOptionValue(std::string& value, std::string& parameters, std::string_view key);

}  // namespace qor
