// Printers made up by a test, in the place of those of the machine.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/print/pdf_file_printer.h"
#include "settings/printers.h"
#include "support/print_system_of.h"

namespace qor::test {

// Queues that tell what they are told to, in any thread, and reject jobs.
class MadeUpQueues : public PrintQueues {
 public:
  struct State {
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<Queue> queues;
    std::string usual;
    bool silent = false;  // the queue "silent" keeps those waiting who ask for it
  };

  explicit MadeUpQueues(std::shared_ptr<State> state) : state_(std::move(state)) {}

  std::vector<QueueName> list() override {
    const std::lock_guard lock(state_->mutex);
    std::vector<QueueName> names;
    for (const Queue& queue : state_->queues) names.push_back(queue.id);
    return names;
  }

  std::string defaultName() override {
    const std::lock_guard lock(state_->mutex);
    return state_->usual;
  }

  std::optional<Queue> find(const std::string& name) override {
    std::unique_lock lock(state_->mutex);
    if (name == "silent") {
      state_->changed.wait(lock, [this] { return !state_->silent; });
      return std::nullopt;
    }
    const auto isNamed = [&name](const Queue& queue) { return queue.id.name == name; };
    const auto found = std::ranges::find_if(state_->queues, isNamed);
    return found == state_->queues.end() ? std::nullopt : std::optional(*found);
  }

  std::unique_ptr<PrintJob> open(const std::string& name, const JobTicket&) override {
    throw PrintError(name + ": rejects jobs");
  }

 private:
  std::shared_ptr<State> state_;
};

// The print system of the process for the length of a test: these queues, and the printer that
// makes PDF files. The printers of the machine and what was measured come back with its end.
class MadeUpPrinters {
 public:
  MadeUpPrinters(std::vector<Queue> queues, std::string usual) {
    state_->queues = std::move(queues);
    state_->usual = std::move(usual);
    InitPrinters();
  }
  ~MadeUpPrinters() {
    setSilent(false);
    gDefaultPrn = default_;
    gPrintMetrics = metrics_;
    gPrinterMeasured = measured_;
  }
  MadeUpPrinters(const MadeUpPrinters&) = delete;
  MadeUpPrinters& operator=(const MadeUpPrinters&) = delete;

  // What changes behind the program's back.
  void setSilent(bool silent) const {
    const std::lock_guard lock(state_->mutex);
    state_->silent = silent;
    state_->changed.notify_all();
  }
  void makeDefault(const char* name) const {
    const std::lock_guard lock(state_->mutex);
    state_->usual = name;
  }
  void remove(const char* name) const {
    const std::lock_guard lock(state_->mutex);
    std::erase_if(state_->queues, [name](const Queue& queue) { return queue.id.name == name; });
  }

 private:
  std::shared_ptr<MadeUpQueues::State> state_ = std::make_shared<MadeUpQueues::State>();
  const PrintSystemOf system_{std::make_unique<MadeUpQueues>(state_), makePdfFilePrinter()};
  VSetPrn default_ = gDefaultPrn;
  SheetMeasures metrics_ = gPrintMetrics;
  bool measured_ = gPrinterMeasured;
};

}  // namespace qor::test
