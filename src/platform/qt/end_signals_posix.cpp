// Signals that end the program.
#include <QApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

#include "platform/qt/end_signals.h"

namespace qor {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// A handler may do next to nothing: it writes a byte, and the event loop reads it.
int readingEnd = -1;
int writingEnd = -1;

void handle(int) {
  const int error = errno;
  const char byte = 0;
  // Where the pair is full, there is enough to read already.
  [[maybe_unused]] const auto written = ::write(writingEnd, &byte, 1);
  errno = error;
}

void install(int number) {
  struct sigaction old {};
  if (::sigaction(number, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = handle;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  ::sigaction(number, &action, nullptr);
}

void restore(int number) {
  struct sigaction old {};
  if (::sigaction(number, nullptr, &old) == 0 && old.sa_handler == handle)
    std::signal(number, SIG_DFL);
}

}  // namespace

EndSignals::EndSignals() {
  std::array<int, 2> ends{};
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0)
    return;
  readingEnd = ends[0];
  writingEnd = ends[1];
  notifier_ = new QSocketNotifier(readingEnd, QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, &EndSignals::close);
  for (const int number : kSignals) install(number);
}

EndSignals::~EndSignals() {
  if (notifier_ == nullptr) return;
  for (const int number : kSignals) restore(number);
  delete notifier_;
  ::close(readingEnd);
  ::close(writingEnd);
}

void EndSignals::close() {
  char byte = 0;
  while (::read(readingEnd, &byte, 1) == 1) {
  }
  came_ = true;
  QApplication::closeAllWindows();
  // A box that is open would keep the loop alive.
  QApplication::exit();
}

}  // namespace qor
