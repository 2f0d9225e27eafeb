// Runs a program and prints the peak of its resident memory in bytes:
//   peak_memory PROGRAM ARGUMENTS...
// A process starts with the peak of the one that started it, so that one has to be small.
#include <cstdio>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("peak_memory PROGRAM ARGUMENTS...\n", stderr);
    return 2;
  }
  const pid_t child = fork();
  if (child == 0) {
    execv(argv[1], argv + 1);
    _exit(127);
  }
  int status = 0;
  struct rusage usage {};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) return 1;
  std::printf("%ld\n", usage.ru_maxrss * 1024);
}
