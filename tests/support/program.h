// Running programs and looking at what they leave.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace qor::test {

struct Outcome {
  int exitCode = 0;    // 0 to 255
  int signal = 0;      // what ended the process, 0 if it ended by itself
  std::string output;  // standard output
  std::string errors;  // standard error
};

struct Surroundings {
  std::string directory{};  // the current one of the program
  std::map<std::string, std::string>
      environment{};                // beside a plain one: locale C, no display, no printers
  unsigned long fileSizeLimit = 0;  // bytes, 0: none
};

// Runs any program found on the path and waits for its end.
Outcome run(const std::vector<std::string>& command, const Surroundings& surroundings = {});

// Runs the program under test with these arguments.
Outcome runViewer(const std::vector<std::string>& arguments, const Surroundings& surroundings = {});

}  // namespace qor::test
