// Landlock by its system calls and the numbers of its rights: kernels know more of them than the
// headers of the C library.
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/walls/file_rules.h"
#include "platform/walls/wall.h"

namespace qor {
namespace {

using Rights = std::uint64_t;

constexpr Rights right(int number) {
  return Rights{1} << number;
}

// Of files.
constexpr Rights kWriteFile = right(1);
constexpr Rights kReadFile = right(2);
constexpr Rights kReadDirectory = right(3);
constexpr Rights kRemoveFile = right(5);
constexpr Rights kMakeFile = right(8);
constexpr Rights kFirstRights = right(13) - 1;  // of the first version, which are 0 to 12
constexpr Rights kRename = right(13);           // from one directory to another
constexpr Rights kTruncate = right(14);
constexpr Rights kControlDevice = right(15);

// Of ports, and of what stands outside the wall.
constexpr Rights kBind = right(0);
constexpr Rights kConnect = right(1);
constexpr Rights kAbstractSockets = right(0);
constexpr Rights kSignals = right(1);

// A later kernel's structures, of which older ones take the start where the rest is zero.
struct Handled {
  Rights files = 0;
  Rights ports = 0;
  Rights scopes = 0;
};

struct PortRule {
  Rights allowed = 0;
  std::uint64_t port = 0;
};
constexpr int kPortRule = 2;
constexpr std::uint16_t kNamePort = 53;  // where answers are asked for that are too long for UDP

// What each version of Landlock has brought. Reading is left alone where all may be read.
Handled handledBy(long version, bool restrictsReading) {
  Handled handled;
  handled.files = kFirstRights;
  if (version >= 2) handled.files |= kRename;
  if (version >= 3) handled.files |= kTruncate;
  if (version >= 4) handled.ports = kBind | kConnect;
  if (version >= 5) handled.files |= kControlDevice;
  if (version >= 6) handled.scopes = kAbstractSockets | kSignals;
  if (!restrictsReading) handled.files &= ~(kReadFile | kReadDirectory);
  return handled;
}

class Descriptor {
 public:
  explicit Descriptor(long number) : number_(static_cast<int>(number)) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number() const { return number_; }

 private:
  int number_;
};

// The rules under way, and the first of them that the kernel didn't take.
class Ruleset {
 public:
  explicit Ruleset(const Handled& handled)
      : handled_(handled),
        rules_(::syscall(SYS_landlock_create_ruleset, &handled_, sizeof handled_, 0)) {
    keepError(rules_.number());
  }

  // Links are followed: what they lead to is what is opened later.
  void allow(const std::string& path, Rights rights) {
    const Descriptor place(::open(path.c_str(), O_PATH | O_CLOEXEC));
    struct stat status {};
    if (place.number() < 0 || ::fstat(place.number(), &status) != 0) return;
    if (!S_ISDIR(status.st_mode)) rights &= kReadFile;
    rights &= handled_.files;
    if (rights == 0) return;
    const landlock_path_beneath_attr rule = {rights, place.number()};
    add(LANDLOCK_RULE_PATH_BENEATH, &rule);
  }

  void allowConnecting(std::uint16_t port) {
    if ((handled_.ports & kConnect) == 0) return;
    const PortRule rule = {kConnect, port};
    add(kPortRule, &rule);
  }

  std::string enforce() {
    if (error_ == 0) keepError(::syscall(SYS_landlock_restrict_self, rules_.number(), 0));
    return error_ == 0 ? std::string() : std::string("Landlock: ") + std::strerror(error_);
  }

 private:
  void add(int kind, const void* rule) {
    keepError(::syscall(SYS_landlock_add_rule, rules_.number(), kind, rule, 0));
  }

  void keepError(long result) {
    if (result < 0 && error_ == 0) error_ = errno;
  }

  int error_ = 0;
  Handled handled_;
  Descriptor rules_;
};

}  // namespace

std::string restrictFiles(const WallPlan& plan) {
  const long version =
      ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  // A kernel that doesn't know it, or isn't to use it.
  if (version < 0 && errno != ENOSYS && errno != EOPNOTSUPP)
    return std::string("Landlock: ") + std::strerror(errno);
  if (version < 1) return {};
  Ruleset rules(handledBy(version, plan.readable.has_value()));
  for (const std::string& directory : plan.writable)
    rules.allow(directory, kWriteFile | kMakeFile | kRemoveFile | kReadDirectory);
  if (plan.readable) {
    for (const std::string& place : *plan.readable) rules.allow(place, kReadFile | kReadDirectory);
  }
  if (plan.network) rules.allowConnecting(plan.network->port);
  if (plan.network && plan.network->resolves) rules.allowConnecting(kNamePort);
  return rules.enforce();
}

}  // namespace qor
