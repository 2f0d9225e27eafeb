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

// Beside what the surroundings say: locale C, no display, no printers.
constexpr const char* kPlain =
    "env -u DISPLAY -u QOR_ANSI_CODEPAGE -u PRINTER -u LPDEST CUPS_SERVER=/nowhere LC_ALL=C";

}  // namespace

Surroundings withoutLeakCheck(Surroundings around) {
  around.environment["LSAN_OPTIONS"] = "";
  around.environment["ASAN_OPTIONS"] = "detect_leaks=0";
  return around;
}

// Tests have threads, and what a child of fork may do beside them is next to nothing: hence spawn.
Process::Process(const std::vector<std::string>& command, const Surroundings& surroundings) {
  std::vector<std::string> line = wordsOf(kPlain);
  for (const auto& [name, value] : surroundings.environment) line.push_back(name + "=" + value);
  line.insert(line.end(), {"sh", "-c", kStart, "sh", surroundings.directory, place_.path("output"),
                           place_.path("errors")});
  const unsigned long limit = surroundings.fileSizeLimit;
  if (limit != 0) line.insert(line.end(), {"prlimit", "--fsize=" + std::to_string(limit)});
  line.insert(line.end(), command.begin(), command.end());
  std::vector<char*> pointers;
  for (std::string& word : line) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const int error =
      ::posix_spawnp(&id_, pointers.front(), nullptr, nullptr, pointers.data(), environ);
  if (error != 0) throw std::system_error(error, std::generic_category(), line.front());
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

void Process::signal(int number) {
  if (!ended_) ::kill(id_, number);
}

void Process::kill() {
  signal(SIGKILL);
  collect(0);
}

void Process::collect(int options) {
  if (!ended_) ended_ = ::waitpid(id_, &status_, options) == id_;
}

void expectTold(const Outcome& outcome, const std::string& text, int exitCode) {
  EXPECT_EQ(outcome.exitCode, exitCode);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(linesOf(outcome.errors).size(), text.empty() ? 0U : 1U) << outcome.errors;
  EXPECT_EQ(outcome.errors.ends_with('\n'), !text.empty());
  EXPECT_NE(outcome.errors.find(text), std::string::npos) << outcome.errors;
}

std::vector<std::string> viewer(const std::vector<std::string>& arguments) {
  return joined({QOR_PROGRAM}, arguments);
}

}  // namespace qor::test
