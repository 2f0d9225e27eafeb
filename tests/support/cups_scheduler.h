// A print scheduler of a test's own, on a port of its own, with its files in a temporary directory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/program.h"
#include "support/temporary_directory.h"

namespace qor::test {

class CupsScheduler {
 public:
  // Starts it and waits until it answers. `directives` go into its configuration.
  explicit CupsScheduler(const std::string& directives = {});

  const std::string& server() const { return server_; }

  // Where runs of the viewer find it, with `place` as their current directory.
  Surroundings surroundings(const TemporaryDirectory& place) const;

  // A queue whose driver is named as lpadmin's -m names it, or is a file; its output is
  // output(name).
  void addQueue(const std::string& name, const std::string& driver,
                const std::vector<std::string>& options = {});
  std::string output(const std::string& name) const { return place_.path("out/" + name); }

  // One of the scheduler's own commands, against it.
  std::string command(std::vector<std::string> line) const;

  // Waits until no job is left to do.
  void finishJobs() const;

  // What the scheduler noted of each job when it was done, a line of
  // "queue|title|copies|collation|media|quality|colour" each.
  std::vector<std::string> jobs() const;

  // The documents that were sent, by job.
  std::string document(int job) const;

  // The bytes that have arrived of the document on its way.
  std::uintmax_t received() const;

  void kill() { process_->kill(); }

 private:
  void writeFiles(const std::string& directives);
  bool answers() const;

  TemporaryDirectory place_;
  std::string server_;
  std::optional<Process> process_;
};

}  // namespace qor::test
