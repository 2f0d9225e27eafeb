// Asks the process' print system in the background: each question in a thread of its own, so that a
// printer that doesn't answer holds up nobody. All calls are made in one thread; the answers wait
// until they are taken there.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace qor {

class PrinterInquiry {
 public:
  // `wake` is called in another thread when there is something to take.
  explicit PrinterInquiry(std::function<void()> wake);
  // Doesn't wait: what is answered later reaches nobody.
  ~PrinterInquiry();
  PrinterInquiry(const PrinterInquiry&) = delete;
  PrinterInquiry& operator=(const PrinterInquiry&) = delete;

  // Nobody asks again what is being asked.
  void askForNames();
  void askFor(const std::string& printer);
  bool isAskingFor(const std::string& printer) const { return asked_.contains(printer); }
  bool isAskingForNames() const { return names_asked_; }

  struct Answers {
    bool names = false;                 // the list of printers, or the default one, is another
    std::vector<std::string> printers;  // those that can do what wasn't known
  };

  // Hands over to the print system what has been answered since the last time, and tells what of it
  // is news.
  Answers take();

 private:
  struct Post;

  template <class Question>
  void ask(Question question);

  std::shared_ptr<Post> post_;
  std::set<std::string> asked_;
  bool names_asked_ = false;
};

}  // namespace qor
