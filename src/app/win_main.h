// The entry of the program.
#pragma once

#include <string>

namespace qor {

// Whether prints and exports wall themselves in. Only tests hold a run against one without.
enum class Walls { raised, none };

// Runs the program on its parameter string and returns the exit code: -2 printing failed, -1 help
// shown or nothing to do, 0 all else, failures included.
int WinMain(const std::string& parameters, Walls walls = Walls::raised);

// Shows the window of a report that the user has opened: a file by its path, whatever its name
// holds, with nothing else said of it.
int OpenReport(const std::string& file);

}  // namespace qor
