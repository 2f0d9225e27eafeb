// The wall around prints and exports, tried from inside and held against runs without it.
#include <cerrno>

#include <fcntl.h>
#include <linux/landlock.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "support/port.h"
#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

const std::string kExport = "-f in/r.txt -export out/o.pdf";
const std::string kPrint = "-g -f in/r.txt";

long landlockVersion() {
  return ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
}

// The answers to the calls behind the wall of the viewer with these arguments, or without it.
std::vector<int> answers(const char* how, const Texts& calls, const std::string& arguments,
                         const Surroundings& around) {
  Texts command = joined({QOR_WALL_PROBE, how}, calls);
  command.emplace_back("--");
  for (std::string& word : wordsOf(arguments)) {
    std::replace(word.begin(), word.end(), '_', ' ');
    command.push_back(word);
  }
  const Outcome outcome = run(command, withoutLeakCheck(around));
  EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
  EXPECT_EQ(outcome.errors, "");
  std::vector<int> found;
  for (const std::string& line : linesOf(outcome.output)) found.push_back(std::stoi(line));
  return found;
}

std::string call(long number, std::initializer_list<std::string> arguments) {
  std::string text = std::to_string(number);
  for (const std::string& argument : arguments) text += "," + argument;
  return text;
}
std::string number(long value) {
  return std::to_string(value);
}
std::string open(const std::string& path, int flags) {
  return call(SYS_openat, {number(AT_FDCWD), "@" + path, number(flags), "420"});
}
std::string make(const std::string& path) {
  return open(path, O_WRONLY | O_CREAT | O_EXCL);
}
std::string read(const std::string& path) {
  return open(path, O_RDONLY);
}
std::string rename(const std::string& from, const std::string& to) {
  return call(SYS_renameat2, {number(AT_FDCWD), "@" + from, number(AT_FDCWD), "@" + to, "0"});
}
std::string anySocket(int family, int kind, int protocol = 0) {
  return call(SYS_socket, {number(family), number(kind), number(protocol)});
}

// A report, places of a run, and files that are none of its business.
struct FilledPlace : TemporaryDirectory {
  FilledPlace() {
    for (const char* name : {"in/r.txt", "in/a", "in/b", "out/old.pdf", "led/to.pdf",
                             "home/.profile", "else/r.txt", "else/a"})
      write(name, "A");
    fs::create_symlink("../led/to.pdf", path("out/link.pdf"));
    for (const char* name : {"in/a", "else/a"}) fs::permissions(path(name), fs::perms(0644));
  }
};

// Calls that have one answer behind the wall of a run with these arguments, and one without it.
struct CallRow {
  std::string arguments;
  int walled;
  Texts calls;
  int bare = 0;
};
// Each call on files of its own.
void expectAnswers(const std::vector<CallRow>& rows,
                   const std::map<std::string, std::string>& environment = {}) {
  for (const auto& [arguments, walled, calls, bare] : rows) {
    for (const std::string& each : calls) {
      SCOPED_TRACE(arguments + ": " + each);
      for (const auto& [how, answer] : {std::pair{"walled", walled}, {"bare", bare}}) {
        const FilledPlace place;
        EXPECT_EQ(answers(how, {each}, arguments, {place.path(), environment, 0}),
                  std::vector{answer});
      }
    }
  }
}

TEST(Wall, letsARunWriteBesideItsTargetAndReportOnly) {
  if (landlockVersion() < 2) GTEST_SKIP() << "this kernel has no rules for files";
  const std::string toLink = "-f in/r.txt -export out/link.pdf";
  const std::string unknown = "-f in/r.txt -export out/o.unknown";
  const std::string withSet = kPrint + " -i else/a";
  expectAnswers({{kExport,
                  0,
                  {make("out/n"), make("in/n"), open("out/old.pdf", O_WRONLY),
                   call(SYS_unlink, {"@out/old.pdf"}), rename("in/a", "in/c"),
                   rename("in/a", "in/b"), read("else/a")}},
                 {kExport,
                  EACCES,
                  {make("n"), make("home/n"), make("else/r_barcode.jpeg"), make("led/n"),
                   open("home/.profile", O_WRONLY), open("home/.profile", O_RDWR | O_APPEND),
                   open("else", O_TMPFILE | O_RDWR), call(SYS_unlink, {"@else/a"}),
                   rename("in/a", "else/n"), rename("else/a", "in/n")}},
                 {kExport, ENOSYS, {open("home/.profile", O_RDONLY | O_TRUNC)}},
                 {toLink, 0, {make("led/n")}},
                 {toLink, EACCES, {make("home/n")}},
                 {unknown, 0, {make("in/n")}},
                 {unknown, EACCES, {make("out/n")}},
                 {kPrint, 0, {make("in/n"), make("n")}},
                 {withSet, 0, {make("in/n")}},
                 {withSet, EACCES, {make("out/n"), make("n"), make("else/n")}}});
}

// For these there are no rules of files, or not on all kernels.
TEST(Wall, leavesFilesTheirOwnersNamesAndTimes) {
  const std::string at = number(AT_FDCWD);
  expectAnswers(
      {{kExport,
        EPERM,
        {call(SYS_truncate, {"@else/a", "0"}), call(SYS_chmod, {"@else/a", "511"}),
         call(SYS_chown, {"@else/a", "-1", "-1"}), call(SYS_link, {"@in/a", "@in/l"}),
         call(SYS_symlink, {"@in/a", "@in/l"}), call(SYS_mkdir, {"@in/d", "511"}),
         call(SYS_utimensat, {at, "@else/a", "0", "0"})}},
       {kExport,
        ENOSYS,
        {call(SYS_fchmodat, {at, "@else/a", "511"}), call(SYS_lchown, {"@else/a", "-1", "-1"}),
         call(SYS_fchownat, {at, "@else/a", "-1", "-1", "0"}),
         call(SYS_linkat, {at, "@in/a", at, "@in/l", "0"}),
         call(SYS_symlinkat, {"@in/a", at, "@in/l"}),
         call(SYS_mknod, {"@in/f", number(S_IFIFO | 0600), "0"}),
         call(SYS_utimes, {"@else/a", "0"}), call(SYS_creat, {"@in/n", "420"})}},
       {kExport, ENOSYS, {call(SYS_openat2, {at, "@in/a", "0", "0"})}, EINVAL}});
}

TEST(Wall, startsNoProgramAndReachesNoProcess) {
  const std::string self = number(::getpid());
  // What a kernel without a wall says to arguments that make no sense doesn't matter here: that it
  // says another thing than behind the wall does.
  const std::pair<std::string, int> rows[] = {
      {call(SYS_execve, {"@/nowhere", "0", "0"}), EPERM},
      {call(SYS_execveat, {"-1", "@", "0", "0", "4096"}), EPERM},
      {call(SYS_ptrace, {"1", "0", "0", "0"}), ENOSYS},
      {call(SYS_process_vm_readv, {self, "0", "0", "0", "0", "0"}), ENOSYS},
      {call(SYS_process_vm_writev, {self, "0", "0", "0", "0", "0"}), ENOSYS},
      {call(SYS_pidfd_open, {self, "0"}), ENOSYS},
      {call(SYS_pidfd_send_signal, {"-1", "0", "0", "0"}), ENOSYS},
      {call(SYS_kill, {self, "0"}), ENOSYS},
      {call(SYS_tgkill, {self, self, "0"}), ENOSYS},
      {call(SYS_tkill, {self, "0"}), ENOSYS},
      {call(SYS_prlimit64, {self, "0", "0", "0"}), ENOSYS},
      {call(SYS_io_uring_setup, {"1", "0"}), ENOSYS},
      {call(SYS_bpf, {"0", "0", "0"}), ENOSYS},
      {call(SYS_perf_event_open, {"0", "0", "-1", "-1", "0"}), ENOSYS},
      {call(SYS_keyctl, {"0", "-3", "0"}), ENOSYS},
      {call(SYS_add_key, {"0", "0", "0", "0", "0"}), ENOSYS},
      {call(SYS_unshare, {"0"}), ENOSYS},
      {call(SYS_setns, {"-1", "0"}), ENOSYS},
      {call(SYS_mount, {"0", "@/nowhere", "0", "0", "0"}), ENOSYS},
      {call(SYS_chroot, {"@/nowhere"}), ENOSYS},
      {call(SYS_pivot_root, {"@/nowhere", "@/nowhere"}), ENOSYS},
      {call(SYS_open_by_handle_at, {"-1", "0", "0"}), ENOSYS},
      {call(SYS_memfd_create, {"@m", "0"}), ENOSYS},
      {call(SYS_personality, {"4294967295"}), ENOSYS},
      {call(SYS_shmget, {"0", "4096", "0"}), ENOSYS},
      {call(SYS_seccomp, {"1", "0", "0"}), ENOSYS},
      {call(SYS_setxattr, {"@in/a", "@user.x", "@x", "1", "0"}), ENOSYS},
      {call(SYS_fsetxattr, {"-1", "@user.x", "@x", "1", "0"}), ENOSYS},
      {call(SYS_fchown, {"-1", "-1", "-1"}), EPERM},
      {call(SYS_fchmod, {"1", "511"}), ENOSYS},
      {call(SYS_openat, {"-1", "@s", number(O_CREAT | O_WRONLY), number(04700)}), ENOSYS},
      {call(SYS_setuid, {"-1"}), ENOSYS},
      {call(SYS_ioctl, {"1", number(TIOCSTI), "@x"}), ENOSYS},
      {call(SYS_fcntl, {"1", number(F_SETOWN), "0"}), ENOSYS},
      {call(SYS_prctl, {number(PR_SET_DUMPABLE), "9"}), ENOSYS}};
  const FilledPlace place;
  Texts calls;
  for (const auto& [each, answer] : rows) calls.push_back(each);
  const auto bare = answers("bare", calls, kExport, in(place));
  for (const std::string& arguments :
       {kExport, kPrint, kPrint + " -p " + "Microsoft_Print_to_PDF"}) {
    const auto walled = answers("walled", calls, arguments, in(place));
    ASSERT_EQ(walled.size(), calls.size());
    ASSERT_EQ(bare.size(), calls.size());
    for (std::size_t i = 0; i < calls.size(); ++i) {
      const bool forLeaks = QOR_SANITIZED && (rows[i].first.starts_with(number(SYS_ptrace) + ",") ||
                                              rows[i].first.starts_with(number(SYS_prctl) + ","));
      if (forLeaks) continue;
      EXPECT_EQ(walled[i], rows[i].second) << arguments << ": " << calls[i];
      EXPECT_TRUE(bare[i] != walled[i] || bare[i] == ENOSYS) << calls[i];
    }
  }
}

TEST(Wall, keepsThreads) {
  const FilledPlace place;
  const int noProcess = QOR_SANITIZED ? 0 : ENOSYS;
  EXPECT_EQ(answers("walled", {"fork", "thread"}, kExport, in(place)),
            (std::vector<int>{noProcess, 0}));
  EXPECT_NE(answers("walled", {"spawn"}, kPrint, in(place)), std::vector<int>{0});
  EXPECT_EQ(answers("bare", {"fork", "thread", "spawn"}, kExport, in(place)),
            (std::vector<int>{0, 0, 0}));
#ifdef __x86_64__
  // The same call by its number in other modes of the machine.
  constexpr long kX32 = 0x40000000;
  EXPECT_EQ(answers("walled", {"i386", call(kX32 + SYS_getpid, {}), call(SYS_getpid, {})}, kExport,
                    in(place)),
            (std::vector<int>{EPERM, EPERM, 0}));
#endif
}

// What a parent has left open.
TEST(Wall, keepsNoDescriptorOfItsParent) {
  const FilledPlace place;
  const std::string write = call(SYS_write, {"9", "@x", "1"});
  for (const auto& [how, answer] : {std::pair{"walled", EBADF}, {"bare", 0}}) {
    const Outcome outcome = run({"sh", "-c", "exec \"$@\" 9>>else/a", "sh", QOR_WALL_PROBE, how,
                                 write, "--", "-f", "in/r.txt", "-export", "out/o.pdf"},
                                in(place));
    EXPECT_EQ(outcome.output, number(answer) + "\n");
  }
  EXPECT_EQ(place.read("else/a"), "Ax");
}

TEST(Wall, opensTheWayToTheSchedulerOnly) {
  constexpr int kMultipath = 262;
  const Texts calls = {anySocket(AF_UNIX, SOCK_STREAM),
                       call(SYS_socketpair, {number(AF_UNIX), number(SOCK_STREAM), "0", "0"}),
                       anySocket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC),
                       anySocket(AF_INET6, SOCK_STREAM, IPPROTO_TCP),
                       anySocket(AF_INET, SOCK_DGRAM),
                       anySocket(AF_INET, SOCK_STREAM, kMultipath),
                       anySocket(AF_INET, SOCK_RAW, IPPROTO_ICMP),
                       anySocket(AF_NETLINK, SOCK_RAW)};
  // The server that CUPS is told, more arguments, and whether each socket is there.
  const std::tuple<const char*, std::string, const char*> rows[] = {
      {"/nowhere", kExport, "--------"},
      {"127.0.0.1", kExport, "--------"},
      {"127.0.0.1", kPrint + " -p microsoft_print_to_PDF", "--------"},
      {"/nowhere", kPrint, "++------"},
      {"/nowhere", kPrint + " -p other", "++------"},
      {"127.0.0.1:99", kPrint, "++++----"},
      {"[::1]:99", kPrint, "++++----"},
      {"localhost", kPrint, "++++----"},
      {"printers.example", kPrint, "+++++---"}};
  for (const auto& [server, arguments, there] : rows) {
    SCOPED_TRACE(server + (" " + arguments));
    const FilledPlace place;
    const Surroundings around = {place.path(), {{"CUPS_SERVER", server}}, 0};
    const auto walled = answers("walled", calls, arguments, around);
    std::string found;
    // The pair has nowhere to go.
    for (const int answer : walled) found += answer == 0 || answer == EFAULT ? '+' : '-';
    EXPECT_EQ(found, there);
    for (const int answer : answers("bare", calls, arguments, around)) EXPECT_NE(answer, ENOSYS);
  }
}

TEST(Wall, opensTheSchedulersPortOnly) {
  const Port scheduler;
  const Port other;
  const FilledPlace place;
  const Surroundings around = {
      place.path(), {{"CUPS_SERVER", "127.0.0.1:" + scheduler.number()}}, 0};
  const Texts calls = {"connect," + scheduler.number(), "connect," + other.number(),
                       call(SYS_bind, {"-1", "0", "0"})};
  EXPECT_EQ(answers("bare", calls, kPrint, around), (std::vector<int>{0, 0, EBADF}));
  EXPECT_EQ(answers("walled", calls, kExport, around), (std::vector<int>{ENOSYS, ENOSYS, EPERM}));
  const int closed = landlockVersion() < 4 ? 0 : EACCES;
  EXPECT_EQ(answers("walled", calls, kPrint, around), (std::vector<int>{0, closed, EPERM}));
}

TEST(Wall, narrowsWhatIsReadWhereTheEnvironmentSaysSo) {
  if (landlockVersion() < 1) GTEST_SKIP() << "this kernel has no rules for files";
  const std::string toText = "-f in/r.txt -export out/o.txt";
  const std::string withSet = "-f in/r.txt -i else/a -export out/o.txt";
  expectAnswers({{toText, 0, {make("out/n")}}}, {{"QOR_PICTURE_PATH", ""}});
  const std::string byLink = "-f out/link.pdf -export in/o.txt";
  const Texts inPath = {read("pictures/p.png"), read("more/below/p.png")};
  const CallRow rows[] = {{kExport, 0, inPath},
                          {kExport,
                           0,
                           {read("in/r.txt"), read("in/a"), read("cp1253.ini"),
                            read("QorUtlView.vset"), read("out/old.pdf")}},
                          {kExport,
                           EACCES,
                           {read("else/a"), read("home/.profile"), read("/etc/passwd"),
                            open("else", O_RDONLY | O_DIRECTORY), read("moreover/p.png"),
                            read("pictures/away.png"), read("cpx.ini"), read("cp1253.ini.bak")}},
                          {withSet, 0, {read("else/a")}},
                          {withSet, EACCES, {read("else/r.txt")}},
                          {toText, EACCES, {read("out/old.pdf")}},
                          {byLink, 0, {read("led/to.pdf")}},
                          {byLink, EACCES, {read("led/other")}},
                          {kPrint, 0, {read("/etc/passwd")}},
                          {kPrint, EACCES, {read("else/a")}}};
  const FilledPlace place;
  for (const char* name : {"pictures/p.png", "more/below/p.png", "moreover/p.png", "cp1253.ini",
                           "cpx.ini", "cp1253.ini.bak", "QorUtlView.vset", "led/other"})
    place.write(name, "A");
  fs::create_symlink("../else/a", place.path("pictures/away.png"));
  for (const CallRow& row : rows) {
    SCOPED_TRACE(row.arguments + ": " + row.calls.front());
    const auto ask = [&](const std::map<std::string, std::string>& environment) {
      return answers("walled", row.calls, row.arguments, {place.path(), environment, 0});
    };
    const auto all = [&row](int answer) { return std::vector(row.calls.size(), answer); };
    EXPECT_EQ(ask({{"QOR_PICTURE_PATH", place.path("pictures") + ":missing:more"}}),
              all(row.walled));
    EXPECT_EQ(ask({}), all(0));
    EXPECT_EQ(ask({{"QOR_PICTURE_PATH", ""}}), all(row.calls == inPath ? EACCES : row.walled));
  }
}

}  // namespace
}  // namespace qor::test
