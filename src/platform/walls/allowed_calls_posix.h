// What a walled run may call, by the numbers of the machine. Calls that it lacks count as none.
#pragma once

#include <array>
#include <cstdint>

#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>

namespace qor {

// Where a leak is looked for at the end, a process of its own looks into this one.
inline constexpr bool kSanitized = QOR_SANITIZED;

// Names and contents; which ones, the rules of files say. Neither owners, modes, times and
// attributes nor links, for which there are no such rules.
inline constexpr int kFileCalls[] = {SCMP_SYS(read),
                                     SCMP_SYS(write),
                                     SCMP_SYS(pread64),
                                     SCMP_SYS(pwrite64),
                                     SCMP_SYS(readv),
                                     SCMP_SYS(writev),
                                     SCMP_SYS(close),
                                     SCMP_SYS(close_range),
                                     SCMP_SYS(lseek),
                                     SCMP_SYS(_llseek),
                                     SCMP_SYS(fstat),
                                     SCMP_SYS(fstat64),
                                     SCMP_SYS(stat),
                                     SCMP_SYS(stat64),
                                     SCMP_SYS(lstat),
                                     SCMP_SYS(lstat64),
                                     SCMP_SYS(newfstatat),
                                     SCMP_SYS(fstatat64),
                                     SCMP_SYS(statx),
                                     SCMP_SYS(access),
                                     SCMP_SYS(faccessat),
                                     SCMP_SYS(faccessat2),
                                     SCMP_SYS(readlink),
                                     SCMP_SYS(readlinkat),
                                     SCMP_SYS(getdents64),
                                     SCMP_SYS(getdents),
                                     SCMP_SYS(statfs),
                                     SCMP_SYS(statfs64),
                                     SCMP_SYS(fstatfs),
                                     SCMP_SYS(fstatfs64),
                                     SCMP_SYS(fsync),
                                     SCMP_SYS(fdatasync),
                                     SCMP_SYS(fadvise64),
                                     SCMP_SYS(fadvise64_64),
                                     SCMP_SYS(arm_fadvise64_64),
                                     SCMP_SYS(fallocate),
                                     SCMP_SYS(ftruncate),
                                     SCMP_SYS(ftruncate64),
                                     SCMP_SYS(flock),
                                     SCMP_SYS(dup),
                                     SCMP_SYS(dup2),
                                     SCMP_SYS(dup3),
                                     SCMP_SYS(pipe),
                                     SCMP_SYS(pipe2),
                                     SCMP_SYS(poll),
                                     SCMP_SYS(ppoll),
                                     SCMP_SYS(select),
                                     SCMP_SYS(_newselect),
                                     SCMP_SYS(pselect6),
                                     SCMP_SYS(rename),
                                     SCMP_SYS(renameat),
                                     SCMP_SYS(renameat2),
                                     SCMP_SYS(unlink),
                                     SCMP_SYS(unlinkat),
                                     SCMP_SYS(umask),
                                     SCMP_SYS(chdir),
                                     SCMP_SYS(fchdir),
                                     SCMP_SYS(getcwd)};

inline constexpr int kMemoryCalls[] = {SCMP_SYS(mmap),    SCMP_SYS(mmap2),    SCMP_SYS(munmap),
                                       SCMP_SYS(mremap),  SCMP_SYS(mprotect), SCMP_SYS(brk),
                                       SCMP_SYS(madvise), SCMP_SYS(msync),    SCMP_SYS(mincore),
                                       SCMP_SYS(mlock),   SCMP_SYS(munlock),  SCMP_SYS(membarrier)};

// Time, waiting, signals, threads, and what a process is.
inline constexpr int kProcessCalls[] = {SCMP_SYS(clock_gettime),
                                        SCMP_SYS(clock_gettime64),
                                        SCMP_SYS(clock_getres),
                                        SCMP_SYS(clock_nanosleep),
                                        SCMP_SYS(clock_nanosleep_time64),
                                        SCMP_SYS(nanosleep),
                                        SCMP_SYS(gettimeofday),
                                        SCMP_SYS(time),
                                        SCMP_SYS(exit),
                                        SCMP_SYS(exit_group),
                                        SCMP_SYS(getpid),
                                        SCMP_SYS(getppid),
                                        SCMP_SYS(gettid),
                                        SCMP_SYS(getuid),
                                        SCMP_SYS(geteuid),
                                        SCMP_SYS(getgid),
                                        SCMP_SYS(getegid),
                                        SCMP_SYS(getresuid),
                                        SCMP_SYS(getresgid),
                                        SCMP_SYS(getgroups),
                                        SCMP_SYS(getrlimit),
                                        SCMP_SYS(ugetrlimit),
                                        SCMP_SYS(getrusage),
                                        SCMP_SYS(sysinfo),
                                        SCMP_SYS(uname),
                                        SCMP_SYS(getcpu),
                                        SCMP_SYS(getrandom),
                                        SCMP_SYS(sched_yield),
                                        SCMP_SYS(sched_getaffinity),
                                        SCMP_SYS(sched_getparam),
                                        SCMP_SYS(sched_getscheduler),
                                        SCMP_SYS(set_tid_address),
                                        SCMP_SYS(set_robust_list),
                                        SCMP_SYS(rseq),
                                        SCMP_SYS(futex),
                                        SCMP_SYS(futex_time64),
                                        SCMP_SYS(rt_sigaction),
                                        SCMP_SYS(rt_sigprocmask),
                                        SCMP_SYS(rt_sigreturn),
                                        SCMP_SYS(rt_sigtimedwait),
                                        SCMP_SYS(sigreturn),
                                        SCMP_SYS(sigaltstack),
                                        SCMP_SYS(restart_syscall),
                                        SCMP_SYS(arch_prctl)};

// On sockets that there are, and for waiting on several.
inline constexpr int kSocketCalls[] = {
    SCMP_SYS(connect),        SCMP_SYS(recvfrom),      SCMP_SYS(recvmsg),
    SCMP_SYS(recvmmsg),       SCMP_SYS(getsockopt),    SCMP_SYS(setsockopt),
    SCMP_SYS(getsockname),    SCMP_SYS(getpeername),   SCMP_SYS(shutdown),
    SCMP_SYS(eventfd2),       SCMP_SYS(epoll_create1), SCMP_SYS(epoll_ctl),
    SCMP_SYS(epoll_wait),     SCMP_SYS(epoll_pwait),   SCMP_SYS(timerfd_create),
    SCMP_SYS(timerfd_settime)};

inline constexpr int kLeakCheckCalls[] = {SCMP_SYS(clone), SCMP_SYS(prctl), SCMP_SYS(ptrace),
                                          SCMP_SYS(wait4)};

inline constexpr int kRefusedCalls[] = {
    SCMP_SYS(execve),   SCMP_SYS(execveat),  SCMP_SYS(fork),  SCMP_SYS(vfork), SCMP_SYS(mkdir),
    SCMP_SYS(link),     SCMP_SYS(symlink),   SCMP_SYS(chmod), SCMP_SYS(chown), SCMP_SYS(fchown),
    SCMP_SYS(truncate), SCMP_SYS(utimensat), SCMP_SYS(bind),  SCMP_SYS(listen)};

// Copies of descriptors, their flags, and locks are the commands 0 to 7.
inline constexpr std::uint64_t kOtherCommands = ~std::uint64_t{7} & 0xFFFFFFFF;

// What a stream is and how much of it waits. No terminal is typed into.
inline constexpr std::uint64_t kDeviceCommands[] = {TCGETS, TIOCGWINSZ, FIONREAD, FIONBIO, FIOCLEX};

inline constexpr std::uint64_t kProcessOptions[] = {PR_SET_NAME, PR_GET_NAME};

// All that makes of a thread a process, or gives it a world of its own.
inline constexpr std::uint64_t kCloneFlags = CLONE_THREAD | CLONE_VFORK | CLONE_NEWNS |
                                             CLONE_NEWCGROUP | CLONE_NEWUTS | CLONE_NEWIPC |
                                             CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET;

inline constexpr std::uint64_t kSocketKind = 0xF;  // without the flags beside it

}  // namespace qor
