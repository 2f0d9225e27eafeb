// Child processes, on POSIX and by Linux's handles of processes.
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/system/child_runs.h"

namespace qor {
namespace {

// Between the word to a child that it is to end and its end by force.
constexpr std::chrono::milliseconds kGrace{1000};

// Bytes of data that the process has: the sixth number tells them with the stack.
std::uint64_t dataBytes() {
  std::ifstream sizes("/proc/self/statm");
  std::uint64_t pages = 0;
  for (int i = 0; i < 6; ++i) sizes >> pages;
  return pages * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

void limitMemory(std::uint64_t bytes) {
  if (bytes == 0) return;
  const std::uint64_t most = dataBytes() + bytes;
  const rlimit limit = {most, most};
  ::setrlimit(RLIMIT_DATA, &limit);
}

void writeAll(int to, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(to, text.data(), text.size());
    if (count < 0 && errno != EINTR) return;
    text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  }
}

// Those that its parent holds are none of the child's business.
void takeSignals() {
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void runChild(int answer, pid_t parent, std::uint64_t bytes,
                           const std::function<std::string()>& work) {
  takeSignals();
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (::getppid() != parent) ::_exit(EXIT_FAILURE);
  ::dup2(answer, STDOUT_FILENO);
  limitMemory(bytes);
  const std::string text = work();
  writeAll(STDOUT_FILENO, std::string_view(text).substr(0, ChildRuns::kLongestAnswer));
  ::_exit(EXIT_SUCCESS);
}

// The library's header of this call can't be used from C++ (glibc 2.36).
int openHandle(pid_t process) {
  return static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
}

// All that a child that has ended has written: the system keeps it.
std::string textFrom(int pipe) {
  std::string text(ChildRuns::kLongestAnswer, '\0');
  std::size_t size = 0;
  while (size < text.size()) {
    const ssize_t count = ::read(pipe, text.data() + size, text.size() - size);
    if (count == 0 || (count < 0 && errno != EINTR)) break;
    size += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
  }
  text.resize(size);
  return text;
}

std::string troubleOf(int status, bool late) {
  if (late) return "took too long and was ended";
  if (WIFEXITED(status)) {
    const int code = WEXITSTATUS(status);
    return code == 0 ? "" : "ended with code " + std::to_string(code);
  }
  const int signal = WTERMSIG(status);
  if (signal == SIGKILL) return "was killed, maybe for want of memory";
  return std::string("crashed: ") + ::strsignal(signal);
}

}  // namespace

ChildRuns::~ChildRuns() {
  for (Run& run : runs_) run.end = Clock::now();
  while (!runs_.empty()) wait(kGrace);
}

void ChildRuns::start(std::size_t id, const ChildLimits& limits,
                      const std::function<std::string()>& work) {
  std::array<int, 2> pipe{};
  if (::pipe(pipe.data()) != 0)
    throw SystemError(std::string("no pipe to another process: ") + std::strerror(errno));
  const pid_t parent = ::getpid();
  const pid_t process = ::fork();
  if (process == 0) runChild(pipe[1], parent, limits.bytes, work);
  const int error = errno;
  ::close(pipe[1]);
  if (process < 0) {
    ::close(pipe[0]);
    throw SystemError(std::string("no room for another process: ") + std::strerror(error));
  }
  const auto end = limits.time.count() == 0 ? Clock::time_point::max() : Clock::now() + limits.time;
  runs_.push_back({id, process, openHandle(process), pipe[0], end, false});
}

std::chrono::milliseconds ChildRuns::untilNextEnd(std::chrono::milliseconds longest) const {
  const auto now = Clock::now();
  for (const Run& run : runs_) {
    if (run.end - now >= longest) continue;
    longest = std::chrono::ceil<std::chrono::milliseconds>(
        std::max(run.end - now, Clock::duration::zero()));
  }
  return longest;
}

// First by a word, so that it takes away what it has not finished.
void ChildRuns::endLate() {
  const auto now = Clock::now();
  for (Run& run : runs_) {
    if (run.end > now) continue;
    ::kill(run.process, run.late ? SIGKILL : SIGTERM);
    run.late = true;
    run.end = now + kGrace;
  }
}

ChildEnd ChildRuns::endOf(const Run& run) {
  int status = 0;
  while (::waitpid(run.process, &status, 0) < 0 && errno == EINTR) continue;
  ChildEnd end = {run.id, textFrom(run.answer), troubleOf(status, run.late)};
  ::close(run.handle);
  ::close(run.answer);
  return end;
}

std::vector<ChildEnd> ChildRuns::wait(std::chrono::milliseconds longest) {
  std::vector<pollfd> handles;
  handles.reserve(runs_.size());
  for (const Run& run : runs_) handles.push_back({run.handle, POLLIN, 0});
  ::poll(handles.data(), handles.size(), static_cast<int>(untilNextEnd(longest).count()));
  endLate();
  std::vector<ChildEnd> ends;
  for (std::size_t i = handles.size(); i-- > 0;) {
    if (handles[i].revents == 0) continue;
    ends.push_back(endOf(runs_[i]));
    runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(i));
  }
  return ends;
}

}  // namespace qor
