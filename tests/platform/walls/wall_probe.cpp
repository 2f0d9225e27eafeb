// A program for tests of the wall.
//   wall_probe run ARGUMENT...      is the viewer, but for the wall
//   wall_probe walled CALL... -- ARGUMENT...
//                                   raises the wall of the viewer with these arguments, makes the
//                                   calls, and writes a line for each: 0, or its error
//   wall_probe bare ...             the same without the wall
// A call is a system call with what it takes, between commas: numbers, or texts behind "@"; or one
// of the words below.
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/command_line.h"
#include "app/run_wall.h"
#include "app/win_main.h"
#include "base/app_options.h"
#include "platform/system/directory.h"
#include "support/rows.h"

namespace qor::test {
namespace {

int errorOf(long result) {
  return result < 0 ? errno : 0;
}

int makeCall(const std::vector<std::string>& words) {
  long arguments[7] = {};
  for (std::size_t i = 0; i < words.size() && i < std::size(arguments); ++i) {
    const std::string& word = words[i];
    if (word.starts_with('@')) {
      arguments[i] = reinterpret_cast<long>(word.c_str() + 1);
    } else {
      std::from_chars(word.data(), word.data() + word.size(), arguments[i]);
    }
  }
  return errorOf(::syscall(arguments[0], arguments[1], arguments[2], arguments[3], arguments[4],
                           arguments[5], arguments[6]));
}

int connectToPort(const std::string& port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(std::stoi(port)));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const int handle = ::socket(AF_INET, SOCK_STREAM, 0);
  if (handle < 0) return errno;
  return errorOf(::connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address));
}

int startProgram() {
  char name[] = "/bin/true";
  char* const arguments[] = {name, nullptr};
  pid_t child = 0;
  const int error = ::posix_spawn(&child, name, nullptr, nullptr, arguments, environ);
  if (error == 0) ::waitpid(child, nullptr, 0);
  return error;
}

int forkProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  if (child > 0) ::waitpid(child, nullptr, 0);
  return errorOf(child);
}

int startThread() {
  try {
    std::thread([] {}).join();
    return 0;
  } catch (const std::system_error& error) {
    return error.code().value();
  }
}

#ifdef __x86_64__
// The number of getpid in the machine's 32 bits.
int callInOldWay() {
  long result = 20;
  asm volatile("int $0x80" : "+a"(result) : : "memory", "r8", "r9", "r10", "r11");
  return result < 0 ? static_cast<int>(-result) : 0;
}
#endif

int tryOut(const std::string& call) {
  const auto words = linesOf(call, ',');
  if (words[0] == "spawn") return startProgram();
  if (words[0] == "fork") return forkProcess();
  if (words[0] == "thread") return startThread();
  if (words[0] == "connect") return connectToPort(words[1]);
#ifdef __x86_64__
  if (words[0] == "i386") return callInOldWay();
#endif
  return makeCall(words);
}

int probe(bool walled, const std::vector<std::string>& words) {
  std::size_t place = 0;
  while (words[place] != "--") ++place;
  std::vector<const char*> arguments = {""};
  for (std::size_t i = place + 1; i < words.size(); ++i) arguments.push_back(words[i].c_str());
  AppOptions.WorkDir = currentDirectory();
  const RunMode mode =
      ParseCommandLine(parameterString(static_cast<int>(arguments.size()), arguments.data()));
  if (walled) raiseRunWall(mode);
  for (std::size_t i = 0; i < place; ++i) std::printf("%d\n", tryOut(words[i]));
  return 0;
}

}  // namespace
}  // namespace qor::test

int main(int argc, char** argv) {
  const std::string what = argv[1];
  if (what == "run") {
    return qor::WinMain(qor::parameterString(argc - 1, argv + 1), qor::Walls::none);
  }
  return qor::test::probe(what == "walled", {argv + 2, argv + argc});
}
