// Pieces of work that are done in processes of their own, several at a time: one that crashes,
// hangs or eats memory costs itself. A process that is as good as new does another piece of the
// same kind.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/child_process.h"

namespace qor {

struct ChildLimits {
  std::chrono::milliseconds time{0};  // of a piece of work; 0: as long as it takes
  std::uint64_t bytes = 0;            // of memory beyond what it starts with; 0: what there is
};

struct ChildEnd {
  std::size_t id = 0;
  std::string answer;   // what its work gave
  std::string trouble;  // why there is none; empty where there is
};

class ChildRuns {
 public:
  ChildRuns(ChildWork work, const ChildLimits& limits);
  // Ends those that are at work.
  ~ChildRuns();
  ChildRuns(const ChildRuns&) = delete;
  ChildRuns& operator=(const ChildRuns&) = delete;

  // Begins a piece of work. Those of one kind may follow each other in a process. False where the
  // system has no room for another process beside those at work. Throws SystemError where it has
  // none at all.
  bool start(std::size_t id, std::string_view kind);

  // Pieces at hand.
  std::size_t running() const { return busy_.size(); }

  // Waits until a piece ends, or for so long. Those whose time is over are ended.
  std::vector<ChildEnd> wait(std::chrono::milliseconds longest);

 private:
  using Clock = std::chrono::steady_clock;

  struct Child {
    Child(const ChildWork& work, std::uint64_t bytes, std::string_view itsKind)
        : process(work, bytes), kind(itsKind) {}

    ChildProcess process;
    std::string kind;
    std::size_t id = 0;
    Clock::time_point end{};
    bool late = false;
  };
  using Children = std::list<Child>;

  Children free(std::size_t id, std::string_view kind);
  Children fork(std::size_t id, std::string_view kind) const;
  std::chrono::milliseconds untilNextEnd(std::chrono::milliseconds longest) const;
  void endLate();
  ChildEnd endOf(Children::iterator child, ChildProcess::State state);

  ChildWork work_;
  ChildLimits limits_;
  Children busy_;
  Children idle_;
};

}  // namespace qor
