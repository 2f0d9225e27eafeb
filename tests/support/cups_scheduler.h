// A print scheduler of a test's own, with its socket and its files in a temporary directory.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "support/port.h"
#include "support/program.h"
#include "support/temporary_directory.h"

namespace qor::test {

// Those of the machine, or with them the one for reports.
enum class Filters { usual, withReports };

class CupsScheduler {
 public:
  // Starts it and waits until it answers.
  explicit CupsScheduler(Filters filters = Filters::usual);

  // Where runs of the viewer find it, with `place` as their current directory.
  Surroundings surroundings(const TemporaryDirectory& place) const;

  // Its two addresses: a path, and a port of this machine.
  std::string socket() const { return place_.path("socket"); }
  const std::string& port() const { return port_; }

  // A queue with a driver as lpadmin's -m names it, or of a file; its output is output(name).
  void addQueue(const std::string& name, const std::string& driver,
                const std::string& option = "printer-is-shared=false") const;
  std::string output(const std::string& name) const { return place_.path("out/" + name); }

  // One of the scheduler's own commands, against it.
  std::string command(const std::vector<std::string>& line) const;

  // Waits until no job is left to do but those that filters have failed on, of which there are so
  // many.
  void finishJobs(std::size_t failed = 0) const;

  // What the scheduler noted of each job when it was done, a line of
  // "queue|title|copies|collation|media|quality|colour" each.
  std::set<std::string> jobs() const;

  // The document that was sent as this job.
  std::string document(int job) const;

  // The bytes that have arrived of the largest document.
  std::uintmax_t received() const;

  // A file of its own: what it notes is "error_log", below "spool/tmp" stand files of its filters,
  // and below "server" those that an administrator has for reports.
  std::string path(const std::string& name) const { return place_.path(name); }

  void kill() { process_->kill(); }

 private:
  void writeFiles(Filters filters) const;
  std::string addFilter() const;

  TemporaryDirectory place_;
  TemporaryDirectory programs_;
  std::string port_ = Port().number();
  std::optional<Process> process_;
};

}  // namespace qor::test
