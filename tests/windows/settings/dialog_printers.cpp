// Queues made up.
#include "windows/settings/dialog_printers.h"

#include "base/errors.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"
#include "settings/printers.h"

namespace qor::test {
namespace {

const Media kA4 = {"iso_a4_210x297mm", {21000, 29700}, {}};
const Media kA5 = {"iso_a5_148x210mm", {14800, 21000}, {}};
const Media kLetter = {"na_letter_8.5x11in", {21590, 27940}, {}};

Queue near() {
  Queue queue;
  queue.id = {"near", "Near driver", "usb:1"};
  queue.media = {kLetter, kA5, kA4};
  queue.defaultMedia = kA4.name;
  queue.smallest = {7620, 12700};
  queue.largest = {21590, 35560};
  queue.sources = {"auto", "tray-1", "tray-2"};
  queue.color = true;
  return queue;
}

// In black, on a paper that isn't A4.
Queue far() {
  Queue queue;
  queue.id = {"far", "Far driver", "usb:2"};
  queue.media = {kA5, kLetter};
  queue.defaultMedia = kA5.name;
  queue.sources = {"tray-3"};
  queue.color = false;
  return queue;
}

class Queues : public PrintQueues {
 public:
  explicit Queues(std::shared_ptr<DialogPrinters::State> state) : state_(std::move(state)) {}

  std::vector<QueueName> list() override {
    const std::lock_guard lock(state_->mutex);
    std::vector<QueueName> names = {near().id, {"silent", "", ""}};
    if (state_->hasFar) names.push_back(far().id);
    return names;
  }

  std::string defaultName() override {
    const std::lock_guard lock(state_->mutex);
    return state_->usual;
  }

  std::optional<Queue> find(const std::string& name) override {
    std::unique_lock lock(state_->mutex);
    if (name == "near") return near();
    if (name == "far" && state_->hasFar) return far();
    if (name == "silent") state_->answers.wait(lock, [this] { return state_->silentAnswers; });
    return std::nullopt;
  }

  std::unique_ptr<PrintJob> open(const std::string& name, const JobTicket&) override {
    throw PrintError(name + ": rejects jobs");
  }

 private:
  std::shared_ptr<DialogPrinters::State> state_;
};

}  // namespace

DialogPrinters::DialogPrinters() : state_(std::make_shared<State>()) {
  std::vector<std::unique_ptr<PrintQueues>> systems;
  systems.push_back(std::make_unique<Queues>(state_));
  systems.push_back(makePdfFilePrinter());
  setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
  InitPrinters();
}

DialogPrinters::~DialogPrinters() {
  letAnswer();
  setPrintSystem(nullptr);
}

void DialogPrinters::letAnswer() {
  const std::lock_guard lock(state_->mutex);
  state_->silentAnswers = true;
  state_->answers.notify_all();
}

void DialogPrinters::makeDefault(const char* name) {
  const std::lock_guard lock(state_->mutex);
  state_->usual = name;
}

void DialogPrinters::removeFar() {
  const std::lock_guard lock(state_->mutex);
  state_->hasFar = false;
}

}  // namespace qor::test
