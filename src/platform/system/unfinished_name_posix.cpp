// Names of unfinished files, on POSIX.
#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

#include "platform/system/unfinished_name.h"

namespace qor {
namespace {

enum class Use { none, filling, noted };

// A handler may read nothing that grows: there are so many, and no more.
struct Slot {
  std::atomic<Use> use{Use::none};
  int directory = -1;
  int flags = 0;
  std::array<char, 64> name{};
};
static_assert(std::atomic<Use>::is_always_lock_free);

std::array<Slot, 32> slots;

constexpr std::array kEndSignals = {SIGTERM, SIGINT, SIGHUP};

void removeAll(int flags) {
  for (Slot& slot : slots)
    if (slot.use == Use::noted && slot.flags == flags)
      ::unlinkat(slot.directory, slot.name.data(), flags);
}

// The handler is gone by the time that the signal comes again, which is when this returns.
void leaveNothing(int number) {
  removeAll(0);
  removeAll(AT_REMOVEDIR);
  ::raise(number);
}

bool isIgnored(int number) {
  struct sigaction action {};
  return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void cleanUpOn(int number) {
  if (isIgnored(number)) return;
  struct sigaction action {};
  action.sa_handler = leaveNothing;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  ::sigaction(number, &action, nullptr);
}

sigset_t endSignals(unsigned bits) {
  sigset_t signals;
  ::sigemptyset(&signals);
  for (std::size_t i = 0; i < kEndSignals.size(); ++i)
    if ((bits >> i & 1U) != 0) ::sigaddset(&signals, kEndSignals[i]);
  return signals;
}

}  // namespace

UnfinishedName::UnfinishedName(int directory, const std::string& name, UnfinishedKind kind) {
  if (name.size() >= slots.front().name.size()) return;
  auto* const free = std::find_if(slots.begin(), slots.end(), [](Slot& slot) {
    Use none = Use::none;
    return slot.use.compare_exchange_strong(none, Use::filling);
  });
  if (free == slots.end()) return;
  free->directory = directory;
  free->flags = kind == UnfinishedKind::directory ? AT_REMOVEDIR : 0;
  *std::copy(name.begin(), name.end(), free->name.begin()) = '\0';
  free->use = Use::noted;
  slot_ = static_cast<int>(free - slots.begin());
}

UnfinishedName::~UnfinishedName() {
  if (slot_ >= 0) slots[static_cast<std::size_t>(slot_)].use = Use::none;
}

void forgetUnfinishedNames() {
  for (Slot& slot : slots) slot.use = Use::none;
}

void cleanUpOnSignals() {
  for (const int number : kEndSignals) cleanUpOn(number);
}

HeldSignals::HeldSignals() {
  const sigset_t all = endSignals(~0U);
  sigset_t before;
  ::pthread_sigmask(SIG_BLOCK, &all, &before);
  for (std::size_t i = 0; i < kEndSignals.size(); ++i)
    if (::sigismember(&before, kEndSignals[i]) == 0) held_ |= 1U << i;
}

bool HeldSignals::oneWaits() {
  sigset_t waiting;
  ::sigpending(&waiting);
  return std::ranges::any_of(kEndSignals, [&waiting](int number) {
    return ::sigismember(&waiting, number) == 1 && !isIgnored(number);
  });
}

HeldSignals::~HeldSignals() {
  const sigset_t held = endSignals(held_);
  ::pthread_sigmask(SIG_UNBLOCK, &held, nullptr);
}

}  // namespace qor
