// Reading and writing Internet Printing Protocol messages, for the files of this module.
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <cups/cups.h>

#include "platform/print/print_queues.h"

namespace qor {

struct IppDeleter {
  void operator()(ipp_t* message) const { ippDelete(message); }
};
using Ipp = std::unique_ptr<ipp_t, IppDeleter>;

struct HttpCloser {
  void operator()(http_t* connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, HttpCloser>;

// How long a question may take, with all that is said to and fro for it: a scheduler that hangs
// must not hold up a run.
class Patience {
 public:
  static constexpr std::chrono::seconds kLimit{5};

  bool isOver() const { return Clock::now() >= end_; }
  int milliseconds() const;  // what is left, at least 1

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point end_ = Clock::now() + kLimit;
};

// Ends what is said on a connection once the patience is over, also with a scheduler that goes on
// and on: libcups looks at the clock only where nothing comes.
class Watch {
 public:
  // Both must live as long.
  Watch(http_t* connection, const Patience& patience);
  ~Watch();
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

 private:
  std::mutex mutex_;
  std::condition_variable answered_;
  bool is_answered_ = false;
  std::thread thread_;
};

// Nobody is there to type a password. libcups wants to know it for each thread that asks.
void refusePasswords();

// A connection to the scheduler on which nothing waits for ever, for a job; null where none
// answers.
Connection connectToScheduler(const Patience& patience = {});

// Lets a question on the connection wait no longer than that, which must live until the next call.
void limitWaiting(http_t* connection, const Patience& patience);

// A request about a queue, from the user of the process.
Ipp queueRequest(ipp_op_t operation, const std::string& queue);

// The first text of an attribute, or all of them; empty where it is not there.
std::string textOf(ipp_t* message, const char* attribute);
std::vector<std::string> textsOf(ipp_t* message, const char* attribute);

// The first number or boolean of an attribute.
int numberOf(ipp_t* message, const char* attribute, int otherwise);
bool isTrue(ipp_t* message, const char* attribute, bool otherwise);

// Resolutions in dots per inch; those that make no sense are left out.
std::vector<Dpi> resolutionsOf(ipp_t* message, const char* attribute);

}  // namespace qor
