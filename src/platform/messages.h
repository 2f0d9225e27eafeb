// Telling the user, where no window is open: notes go to standard output, warnings to standard
// error as one line, so that a server's log tells why a file is missing.
#pragma once

#include <string_view>

namespace qor {

// One line on standard error and nothing on any window, for the log of a server.
void writeErrorLine(std::string_view text);

void showInformation(std::string_view text);
void showWarning(std::string_view text);

}  // namespace qor
