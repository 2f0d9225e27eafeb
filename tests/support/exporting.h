// Tests that export by the program from outside, and have scripts read what it wrote.
#pragma once

#include "support/test.h"

namespace qor::test {

class Exporting : public testing::Test {
 protected:
  // Exports this report in a directory of the test's own, whatever directory the surroundings say.
  Outcome exportTo(const std::string& target, const std::string& report,
                   const std::vector<std::string>& more = {}, Surroundings around = {}) {
    place_.write("r.txt", report);
    around.directory = place_.path();
    return runViewer(joined({"-f", "r.txt", "-export", target}, more), around);
  }

  // The lines that a script below tests/export tells of a file.
  std::vector<std::string> readBy(const std::string& script, const std::string& file,
                                  const std::vector<std::string>& more = {}) const {
    const std::string path = QOR_SOURCE_DIR "/tests/export/" + script;
    const Outcome outcome = run(joined({"/usr/bin/python3", path, place_.path(file)}, more),
                                {{}, {{"PYTHONIOENCODING", "utf-8"}}, 0});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    return linesOf(outcome.output);
  }

  TemporaryDirectory place_;
};

}  // namespace qor::test
