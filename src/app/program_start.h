// What every program of the core begins with.
#pragma once

namespace qor {

// The process's name, version, directory and languages, in AppOptions.
void startProgram();

}  // namespace qor
