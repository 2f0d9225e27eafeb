#include "support/program.h"

#include <csignal>
#include <system_error>

#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/rows.h"

namespace qor::test {
namespace {

constexpr int kKilled = 128;  // what shells add to a signal

// A shell that enters a directory and becomes the program: $1 is the directory, $2 and $3 are the
// files of what the program writes.
constexpr const char* kStart = "cd \"${1:-.}\" && exec >\"$2\" 2>\"$3\" && shift 3 && exec \"$@\"";

std::vector<std::string> environmentOf(const Surroundings& surroundings) {
  std::map<std::string, std::string> variables;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string variable = *entry;
    const std::size_t end = variable.find('=');
    variables[variable.substr(0, end)] = variable.substr(end + 1);
  }
  for (const char* name : {"DISPLAY", "QOR_ANSI_CODEPAGE", "PRINTER", "LPDEST"})
    variables.erase(name);
  variables["CUPS_SERVER"] = "/nowhere";
  variables["LC_ALL"] = "C";
  for (const auto& [name, value] : surroundings.environment) variables[name] = value;
  std::vector<std::string> entries;
  for (const auto& [name, value] : variables) entries.push_back(name + "=" + value);
  return entries;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

// Tests have threads, and what a child of fork may do beside them is next to nothing: hence spawn.
Process::Process(std::vector<std::string> command, const Surroundings& surroundings) {
  if (surroundings.fileSizeLimit != 0) {
    command.insert(command.begin(),
                   {"prlimit", "--fsize=" + std::to_string(surroundings.fileSizeLimit)});
  }
  command.insert(command.begin(), {"sh", "-c", kStart, "sh", surroundings.directory,
                                   place_.path("output"), place_.path("errors")});
  std::vector<std::string> environment = environmentOf(surroundings);
  const int error = ::posix_spawnp(&id_, command.front().c_str(), nullptr, nullptr,
                                   pointersTo(command).data(), pointersTo(environment).data());
  if (error != 0) throw std::system_error(error, std::generic_category(), command.front());
}

Surroundings in(const TemporaryDirectory& place, const char* directory) {
  return {place.path(directory), {}, 0};
}

Process::~Process() {
  kill();
}

bool Process::isRunning() {
  collect(WNOHANG);
  return !ended_;
}

Outcome Process::wait() {
  collect(0);
  const int signal = WIFSIGNALED(status_) ? WTERMSIG(status_) : 0;
  return {WIFEXITED(status_) ? WEXITSTATUS(status_) : kKilled + signal, signal,
          place_.read("output"), place_.read("errors")};
}

void Process::kill() {
  if (ended_) return;
  ::kill(id_, SIGKILL);
  collect(0);
}

void Process::collect(int options) {
  if (!ended_) ended_ = ::waitpid(id_, &status_, options) == id_;
}

Outcome run(const std::vector<std::string>& command, const Surroundings& surroundings) {
  return Process(command, surroundings).wait();
}

void expectTold(const Outcome& outcome, const std::string& text, int exitCode) {
  EXPECT_EQ(outcome.exitCode, exitCode);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(linesOf(outcome.errors).size(), text.empty() ? 0U : 1U) << outcome.errors;
  EXPECT_EQ(outcome.errors.ends_with('\n'), !text.empty());
  EXPECT_NE(outcome.errors.find(text), std::string::npos) << outcome.errors;
}

std::vector<std::string> viewer(const std::vector<std::string>& arguments) {
  std::vector<std::string> command = {QOR_PROGRAM};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return command;
}

Outcome runViewer(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
  return run(viewer(arguments), surroundings);
}

}  // namespace qor::test
