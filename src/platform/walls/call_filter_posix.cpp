// seccomp, by libseccomp. The filter names what a run may call, so that calls which nobody thought
// of, and those of later kernels, are shut: they answer as if the kernel didn't have them, for
// which libraries are prepared.
#include <cerrno>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <span>

#include <fcntl.h>
#include <linux/seccomp.h>
#include <netinet/in.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/walls/allowed_calls_posix.h"
#include "platform/walls/call_filter.h"
#include "platform/walls/wall.h"

namespace qor {
namespace {

struct FilterReleaser {
  void operator()(void* filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, FilterReleaser>;
using Conditions = std::initializer_list<scmp_arg_cmp>;

// The kernel takes 32 bits of such arguments, whatever stands in the upper half.
scmp_arg_cmp bits(unsigned argument, std::uint64_t mask, std::uint64_t value) {
  return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}
scmp_arg_cmp is(unsigned argument, std::uint64_t value) {
  constexpr std::uint64_t kInteger = 0xFFFFFFFF;
  return bits(argument, kInteger, value);
}

class Allowed {
 public:
  explicit Allowed(const Filter& filter) : filter_(filter.get()) {}

  void add(std::span<const int> calls) const {
    for (const int call : calls) seccomp_rule_add_array(filter_, SCMP_ACT_ALLOW, call, 0, nullptr);
  }

  // Where all the conditions hold.
  void add(int call, Conditions conditions) const {
    seccomp_rule_add_array(filter_, SCMP_ACT_ALLOW, call, static_cast<unsigned>(conditions.size()),
                           conditions.begin());
  }

  // Where the argument is one of the values.
  void add(int call, unsigned argument, std::span<const std::uint64_t> values) const {
    for (const std::uint64_t value : values) add(call, {is(argument, value)});
  }

 private:
  scmp_filter_ctx filter_;
};

// Some kernels can't keep a file from being emptied where it is only opened, and nothing here is
// written that way. Nor is anything made that would run with its owner's rights.
void allowFiles(const Allowed& allowed) {
  allowed.add(kFileCalls);
  constexpr std::uint64_t kSpecialRights = S_ISUID | S_ISGID | S_ISVTX;
  allowed.add(SCMP_SYS(open), {bits(1, O_TRUNC, 0), bits(2, kSpecialRights, 0)});
  allowed.add(SCMP_SYS(openat), {bits(2, O_TRUNC, 0), bits(3, kSpecialRights, 0)});
  for (const int call : {SCMP_SYS(fcntl), SCMP_SYS(fcntl64)}) {
    allowed.add(call, {bits(1, kOtherCommands, 0)});
    allowed.add(call, {is(1, F_DUPFD_CLOEXEC)});
  }
  allowed.add(SCMP_SYS(ioctl), 1, kDeviceCommands);
}

// Threads, and signals to itself; no other process, neither new nor old.
void allowProcess(const Allowed& allowed) {
  const auto self = static_cast<std::uint64_t>(::getpid());
  allowed.add(kProcessCalls);
  allowed.add(SCMP_SYS(clone), {bits(0, kCloneFlags, CLONE_THREAD)});
  allowed.add(SCMP_SYS(prctl), 0, kProcessOptions);
  allowed.add(SCMP_SYS(prlimit64), {is(0, 0)});
  for (const int call : {SCMP_SYS(kill), SCMP_SYS(tgkill)}) allowed.add(call, {is(0, self)});
  if (kSanitized) allowed.add(kLeakCheckCalls);
}

void allowSockets(const Allowed& allowed) {
  allowed.add(kSocketCalls);
  for (const int call : {SCMP_SYS(socket), SCMP_SYS(socketpair)}) {
    allowed.add(call, {is(0, AF_UNIX)});
  }
  // Data in the first packet would connect without being asked where to.
  allowed.add(SCMP_SYS(sendto), {bits(3, MSG_FASTOPEN, 0)});
  allowed.add(SCMP_SYS(sendmsg), {bits(2, MSG_FASTOPEN, 0)});
  allowed.add(SCMP_SYS(sendmmsg), {bits(3, MSG_FASTOPEN, 0)});
}

void allowNetwork(const Allowed& allowed, const NetworkGate& gate) {
  const auto allow = [&allowed](std::uint64_t kind, int protocol) {
    for (const unsigned family : {unsigned{AF_INET}, unsigned{AF_INET6}}) {
      for (const int each : {0, protocol}) {
        allowed.add(SCMP_SYS(socket), {is(0, family), bits(1, kSocketKind, kind),
                                       is(2, static_cast<std::uint64_t>(each))});
      }
    }
  };
  allow(SOCK_STREAM, IPPROTO_TCP);
  if (gate.resolves) allow(SOCK_DGRAM, IPPROTO_UDP);
}

// What programs try where it is of use answers that it isn't permitted, which reads better than a
// kernel without it; processes are made without clone3, whose flags can't be looked at.
Filter filterOf(const WallPlan& plan) {
  Filter filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)));
  if (!filter) return filter;
  seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_ERRNO(EPERM));
  seccomp_attr_set(filter.get(), SCMP_FLTATR_API_SYSRAWRC, 1);
  // Older kernels would slow down all of the run for it: this process keeps secrets from nobody in
  // it.
  seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_SSB, 1);
  const Allowed allowed(filter);
  allowFiles(allowed);
  allowed.add(kMemoryCalls);
  allowProcess(allowed);
  for (const int call : kRefusedCalls)
    seccomp_rule_add_array(filter.get(), SCMP_ACT_ERRNO(EPERM), call, 0, nullptr);
  if (plan.localSockets) allowSockets(allowed);
  if (plan.network) allowNetwork(allowed, *plan.network);
  return filter;
}

// A filter that isn't there can't be read, which only a kernel that takes filters finds out.
bool kernelTakesFilters() {
  return ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, nullptr, 0, 0) != 0 && errno == EFAULT;
}

}  // namespace

std::string restrictCalls(const WallPlan& plan) {
  if (!kernelTakesFilters()) return {};
  const Filter filter = filterOf(plan);
  const int error = filter ? -seccomp_load(filter.get()) : ENOMEM;
  return error == 0 ? std::string() : std::string("seccomp: ") + std::strerror(error);
}

}  // namespace qor
