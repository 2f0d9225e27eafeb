// A print scheduler with queues, for other programs: print_queues COUNT. Prints what CUPS_SERVER is
// to be and stays until its standard input ends. The default queue's device is a host that never
// answers.
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

#include "support/cups_scheduler.h"

namespace {

constexpr const char* kDriver = "drv:///sample.drv/generic.ppd";
constexpr const char* kDeadHost = "socket://192.0.2.1";  // of the addresses that nobody may have

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const qor::test::CupsScheduler scheduler;
  scheduler.command({"lpadmin", "-p", "queue0", "-E", "-v", kDeadHost, "-m", kDriver});
  for (int i = 1; i < std::atoi(argv[1]); ++i)
    scheduler.addQueue("queue" + std::to_string(i), kDriver);
  scheduler.command({"lpadmin", "-d", "queue0"});
  std::cout << scheduler.surroundings({}).environment.at("CUPS_SERVER") << std::endl;
  std::cin.get();
}
