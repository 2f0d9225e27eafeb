// Questions in threads.
#include "platform/print/printer_inquiry.h"

#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/print/print_system.h"

namespace qor {

// Where threads leave what they were told. It lives as long as any of them.
struct PrinterInquiry::Post {
  std::mutex mutex;
  std::function<void()> wake;  // null once nobody takes anything
  std::optional<PrinterNames> names;
  std::vector<std::pair<std::string, KnownPrinter>> printers;
};

PrinterInquiry::PrinterInquiry(std::function<void()> wake) : post_(std::make_shared<Post>()) {
  post_->wake = std::move(wake);
}

PrinterInquiry::~PrinterInquiry() {
  const std::lock_guard lock(post_->mutex);
  post_->wake = nullptr;
}

// The question gives the step that leaves its answer in the post.
template <class Question>
void PrinterInquiry::ask(Question question) {
  std::thread([post = post_, systems = printSystem().systems(), question = std::move(question)] {
    const auto leave = question(systems);
    const std::lock_guard lock(post->mutex);
    if (!post->wake) return;
    leave(*post);
    post->wake();
  }).detach();
}

void PrinterInquiry::askForNames() {
  if (std::exchange(names_asked_, true)) return;
  ask([](const PrintSystems& systems) {
    return [names = qor::askForNames(systems)](Post& post) { post.names = names; };
  });
}

void PrinterInquiry::askFor(const std::string& printer) {
  if (!asked_.insert(printer).second) return;
  ask([printer](const PrintSystems& systems) {
    return [printer, found = askForPrinter(systems, printer)](Post& post) {
      post.printers.emplace_back(printer, found);
    };
  });
}

PrinterInquiry::Answers PrinterInquiry::take() {
  std::optional<PrinterNames> names;
  decltype(Post::printers) printers;
  {
    const std::lock_guard lock(post_->mutex);
    names.swap(post_->names);
    printers.swap(post_->printers);
  }
  Answers answers;
  if (names) {
    names_asked_ = false;
    answers.names = printSystem().learn(std::move(*names));
  }
  for (auto& [name, printer] : printers) {
    asked_.erase(name);
    if (printSystem().learn(name, std::move(printer))) answers.printers.push_back(name);
  }
  return answers;
}

}  // namespace qor
