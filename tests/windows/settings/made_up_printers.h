// Printers of a test's own in the place of the machine's, for as long as the object lives: "far"
// and "near", which is the default one, then "silent", which answers once it is let, and the
// printer that makes PDF files.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>

namespace qor::test {

class MadeUpPrinters {
 public:
  MadeUpPrinters();
  ~MadeUpPrinters();

  void letAnswer();
  void removeFar();

  // What the queues and the threads that ask them share.
  struct State {
    std::mutex mutex;
    std::condition_variable answers;
    bool silentAnswers = false;
    bool hasFar = true;
  };

 private:
  std::shared_ptr<State> state_;
};

}  // namespace qor::test
