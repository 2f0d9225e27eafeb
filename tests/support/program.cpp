#include "support/program.h"

#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temporary_directory.h"

namespace qor::test {
namespace {

void redirect(const std::string& file, int handle) {
  const int opened = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  ::dup2(opened, handle);
  ::close(opened);
}

void enter(const Surroundings& surroundings) {
  ::unsetenv("DISPLAY");
  ::unsetenv("QOR_ANSI_CODEPAGE");
  for (const char* name : {"PRINTER", "LPDEST"}) ::unsetenv(name);
  ::setenv("CUPS_SERVER", "/nowhere", 1);
  ::setenv("LC_ALL", "C", 1);
  for (const auto& [name, value] : surroundings.environment) {
    ::setenv(name.c_str(), value.c_str(), 1);
  }
  if (!surroundings.directory.empty() && ::chdir(surroundings.directory.c_str()) != 0) ::_exit(126);
  if (surroundings.fileSizeLimit != 0) {
    const rlimit limit = {surroundings.fileSizeLimit, surroundings.fileSizeLimit};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
}

[[noreturn]] void become(std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  ::execvp(arguments[0], arguments.data());
  ::_exit(127);
}

}  // namespace

Outcome run(const std::vector<std::string>& command, const Surroundings& surroundings) {
  const TemporaryDirectory place;
  const pid_t child = ::fork();
  if (child == 0) {
    redirect(place.path("output"), 1);
    redirect(place.path("errors"), 2);
    enter(surroundings);
    become(command);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 0, WIFSIGNALED(status) ? WTERMSIG(status) : 0,
          place.read("output"), place.read("errors")};
}

Outcome runViewer(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
  std::vector<std::string> command = {QOR_PROGRAM};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return run(command, surroundings);
}

}  // namespace qor::test
