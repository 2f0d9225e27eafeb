// Child processes, on POSIX.
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string_view>
#include <utility>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/system/child_process.h"
#include "platform/system/unfinished_name.h"

namespace qor {
namespace {

// What stands before an answer.
struct AnswerHead {
  std::uint32_t size = 0;
  std::uint32_t canGoOn = 0;
};

// What a report leaves behind in memory is not to grow without end.
constexpr int kMostPieces = 64;

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

bool writeAll(int to, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(to, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return false;
    bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  }
  return true;
}

template <class Value>
std::string_view bytesOf(const Value& value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

// A number of few bytes comes whole or not at all.
bool takePiece(std::size_t& id) {
  ssize_t count = 0;
  do count = ::read(STDOUT_FILENO, &id, sizeof id);
  while (count < 0 && errno == EINTR);
  return count == sizeof id;
}

bool tell(const ChildAnswer& answer) {
  const std::string_view text =
      std::string_view(answer.text).substr(0, ChildProcess::kLongestAnswer);
  const AnswerHead head = {static_cast<std::uint32_t>(text.size()), answer.canGoOn ? 1U : 0U};
  return writeAll(STDOUT_FILENO, std::string(bytesOf(head)).append(text));
}

// Those that are limited in their memory start anew for each piece.
[[noreturn]] void runChild(pid_t parent, std::uint64_t bytes, const ChildWork& work) {
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (::getppid() != parent) ::_exit(EXIT_FAILURE);
  limitMemory(bytes);
  std::size_t id = 0;
  for (int rest = bytes == 0 ? kMostPieces : 1; rest > 0 && takePiece(id); --rest) {
    ChildAnswer answer = work(id);
    answer.canGoOn = answer.canGoOn && rest > 1;
    if (!tell(answer) || !answer.canGoOn) break;
  }
  ::_exit(EXIT_SUCCESS);
}

// Two ends of a line, closed with it.
class Line {
 public:
  Line() {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends_.data()) != 0)
      throw SystemError(std::string("no line to another process: ") + std::strerror(errno));
  }
  ~Line() {
    for (const int end : ends_)
      if (end >= 0) ::close(end);
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  int ofChild() const { return ends_[1]; }
  int takeOfParent() { return std::exchange(ends_[0], -1); }

 private:
  std::array<int, 2> ends_{-1, -1};
};

// Those that its parent holds are none of the child's business.
void takeSignals() {
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

std::string troubleOf(int status) {
  if (WIFEXITED(status)) return "ended with code " + std::to_string(WEXITSTATUS(status));
  const int signal = WTERMSIG(status);
  if (signal == SIGKILL) return "was killed, maybe for want of memory";
  return std::string("crashed: ") + ::strsignal(signal);
}

}  // namespace

ChildProcess::ChildProcess(const ChildWork& work, std::uint64_t bytes) {
  Line line;
  const pid_t parent = ::getpid();
  process_ = ::fork();
  if (process_ < 0)
    throw SystemError(std::string("no room for another process: ") + std::strerror(errno));
  if (process_ == 0) {
    takeSignals();
    forgetUnfinishedNames();
    ::dup2(line.ofChild(), STDOUT_FILENO);
    // The ends of other lines among them: those must close with the parent.
    ::close_range(STDERR_FILENO + 1, ~0U, 0);
    runChild(parent, bytes, work);
  }
  line_ = line.takeOfParent();
}

ChildProcess::~ChildProcess() {
  wait();
  ::close(line_);
}

bool ChildProcess::give(std::size_t id) const {
  return writeAll(line_, bytesOf(id));
}

ChildProcess::State ChildProcess::look() {
  std::array<char, 4096> bytes;
  const ssize_t count = ::read(line_, bytes.data(), bytes.size());
  if (count < 0 && errno == EINTR) return State::working;
  if (count <= 0) return State::ended;
  received_.append(bytes.data(), static_cast<std::size_t>(count));
  AnswerHead head;
  if (received_.size() < sizeof head) return State::working;
  std::memcpy(&head, received_.data(), sizeof head);
  const std::size_t size = sizeof head + std::size_t{head.size};
  if (size > sizeof head + kLongestAnswer || received_.size() > size) return State::ended;
  return received_.size() == size ? State::answered : State::working;
}

ChildAnswer ChildProcess::takeAnswer() {
  AnswerHead head;
  std::memcpy(&head, received_.data(), sizeof head);
  const std::string received = std::exchange(received_, {});
  return {received.substr(sizeof head), head.canGoOn != 0};
}

void ChildProcess::terminate() const {
  ::kill(process_, SIGTERM);
}

void ChildProcess::kill() const {
  ::kill(process_, SIGKILL);
}

// One that has ended by itself keeps the reason of that.
int ChildProcess::wait() {
  int status = 0;
  if (process_ <= 0) return status;
  kill();
  while (::waitpid(process_, &status, 0) < 0 && errno == EINTR) continue;
  process_ = 0;
  return status;
}

std::string ChildProcess::trouble() {
  return troubleOf(wait());
}

}  // namespace qor
