// Pieces of work that are done in processes of their own, several at a time: one that crashes,
// hangs or eats memory costs itself. A child is a copy of the process as it stands, so whatever was
// made ready before is ready in each. Children end with the process, whatever ends that.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace qor {

struct ChildLimits {
  std::chrono::milliseconds time{0};  // 0: as long as it takes
  std::uint64_t bytes = 0;            // of memory beyond what it starts with; 0: what there is
};

struct ChildEnd {
  std::size_t id = 0;
  std::string answer;   // what its work gave
  std::string trouble;  // why there is none; empty where there is
};

class ChildRuns {
 public:
  ChildRuns() = default;
  // Ends those that still run.
  ~ChildRuns();
  ChildRuns(const ChildRuns&) = delete;
  ChildRuns& operator=(const ChildRuns&) = delete;

  // The longest answer, in bytes: what is longer is cut.
  static constexpr std::size_t kLongestAnswer = 32768;

  // The process must have one thread. In the child the answer takes the place of the standard
  // output. Throws SystemError where the system has no room for another process.
  void start(std::size_t id, const ChildLimits& limits, const std::function<std::string()>& work);

  std::size_t running() const { return runs_.size(); }

  // Waits until a child ends, or for so long. Those whose time is over are ended.
  std::vector<ChildEnd> wait(std::chrono::milliseconds longest);

 private:
  using Clock = std::chrono::steady_clock;

  struct Run {
    std::size_t id;
    int process;
    int handle;  // tells when it ends
    int answer;  // where that comes from
    Clock::time_point end;
    bool late;
  };

  std::chrono::milliseconds untilNextEnd(std::chrono::milliseconds longest) const;
  void endLate();
  static ChildEnd endOf(const Run& run);

  std::vector<Run> runs_;
};

}  // namespace qor
