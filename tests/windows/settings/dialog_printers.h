// Printers of a test's own in the place of the machine's, for as long as the object lives: "far"
// and "near", which is the default one, then "silent", which answers once it is let, and the
// printer that makes PDF files.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

namespace qor::test {

class DialogPrinters {
 public:
  DialogPrinters();
  ~DialogPrinters();

  void letAnswer();
  void removeFar();
  void makeDefault(const char* name);

  // What the queues and the threads that ask them share.
  struct State {
    std::mutex mutex;
    std::condition_variable answers;
    bool silentAnswers = false;
    bool hasFar = true;
    std::string usual = "near";
  };

 private:
  std::shared_ptr<State> state_;
};

}  // namespace qor::test
