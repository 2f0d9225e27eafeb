// A copy of the process as it stands, which does pieces of work that it is told by their numbers:
// whatever was made ready before is ready in it. It ends with the process, whatever ends that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace qor {

struct ChildAnswer {
  std::string text;
  bool canGoOn = false;  // the child is good for another piece of work
};

// In the child: the piece with this number. It throws nothing.
using ChildWork = std::function<ChildAnswer(std::size_t id)>;

class ChildProcess {
 public:
  // The process must have one thread. The child may take so many bytes of memory beyond what it
  // starts with (0: what there is), and talks to its parent where the standard output was. Throws
  // SystemError where the system has no room for another process.
  ChildProcess(const ChildWork& work, std::uint64_t bytes);
  // Ends it by force.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // The longest answer, in bytes: what is longer is cut.
  static constexpr std::size_t kLongestAnswer = 32768;

  // Tells it its next piece of work. False where it has ended.
  bool give(std::size_t id) const;

  // Something comes from here when it answers or ends.
  int answers() const { return line_; }

  enum class State { working, answered, ended };
  // Takes what has come. Once it has answered, takeAnswer() is what it said.
  State look();
  ChildAnswer takeAnswer();

  // Asks it to take away what it has not finished, and to end.
  void terminate() const;
  // The same by force, without asking.
  void kill() const;

  // Waits for the end of one that has ended, or ends it by force: why it gave no answer.
  std::string trouble();

 private:
  int wait();

  int process_ = 0;  // none
  int line_ = -1;    // to it and from it
  std::string received_;
};

}  // namespace qor
