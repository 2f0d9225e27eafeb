// Running programs and looking at what they leave.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

#include "support/temporary_directory.h"

namespace qor::test {

struct Outcome {
  int exitCode = 0;    // 0 to 255; 128 and the signal that ended it
  int signal = 0;      // what ended the process, 0 if it ended by itself
  std::string output;  // standard output
  std::string errors;  // standard error

  // All of it, such as "0:" where nothing is said.
  std::string told() const { return std::to_string(exitCode) + ":" + output + errors; }
};

struct Surroundings {
  std::string directory{};  // the current one of the program
  // Beside a plain one: locale C, no display, no printers.
  std::map<std::string, std::string> environment{};
  unsigned long fileSizeLimit = 0;  // bytes, 0: none
};

// The directory, and nothing else that differs.
inline Surroundings in(const TemporaryDirectory& place, const char* directory = "") {
  return {place.path(directory), {}, 0};
}

// The same where the program can't read what the sanitizers are told here: leaks aren't looked for.
Surroundings withoutLeakCheck(Surroundings around);

// A program that runs beside the test. What is still running goes with the object.
class Process {
 public:
  // Takes any program found on the path; one that can't be started ends with 127.
  explicit Process(const std::vector<std::string>& command, const Surroundings& surroundings = {});
  ~Process() { kill(); }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  pid_t id() const { return id_; }
  bool isRunning();
  Outcome wait();
  void signal(int number);
  void kill();

 private:
  void collect(int options);

  TemporaryDirectory place_;  // of what it writes
  pid_t id_ = 0;
  bool ended_ = false;
  int status_ = 0;  // as waitpid tells it
};

// Runs a program and waits for its end.
inline Outcome run(const std::vector<std::string>& command, const Surroundings& around = {}) {
  return Process(command, around).wait();
}

// Expects the exit code, and one line on standard error that holds the text: none for no text.
void expectTold(const Outcome& outcome, const std::string& text, int exitCode = 0);

// The command line of the program under test.
std::vector<std::string> viewer(const std::vector<std::string>& arguments);

// Runs the program under test with these arguments.
inline Outcome runViewer(const std::vector<std::string>& arguments,
                         const Surroundings& surroundings = {}) {
  return run(viewer(arguments), surroundings);
}

}  // namespace qor::test
