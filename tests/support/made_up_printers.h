// Printers made up by a test, in the place of those of the machine.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"
#include "settings/printers.h"

namespace qor::test {

// Queues that tell what they are told to, and take no jobs.
class MadeUpQueues : public PrintQueues {
 public:
  MadeUpQueues(std::vector<Queue> queues, std::string usual)
      : queues_(std::move(queues)), usual_(std::move(usual)) {}

  std::vector<QueueName> list() override {
    std::vector<QueueName> names;
    for (const Queue& queue : queues_) names.push_back(queue.id);
    return names;
  }
  std::string defaultName() override { return usual_; }

  std::optional<Queue> find(const std::string& name) override {
    const auto found = std::ranges::find(queues_, name, [](const Queue& q) { return q.id.name; });
    return found == queues_.end() ? std::nullopt : std::optional(*found);
  }

  std::unique_ptr<PrintJob> open(const std::string&, const JobTicket&) override { return nullptr; }

 private:
  std::vector<Queue> queues_;
  std::string usual_;
};

// The print system of the process for the length of a test: these queues, and the printer that
// makes PDF files. The printers of the machine and what was measured come back with its end.
class MadeUpPrinters {
 public:
  MadeUpPrinters(std::vector<Queue> queues, std::string usual) {
    use(std::move(queues), std::move(usual));
  }
  ~MadeUpPrinters() {
    setPrintSystem(nullptr);
    gDefaultPrn = default_;
    gPrintMetrics = metrics_;
    gPrinterMeasured = measured_;
  }
  MadeUpPrinters(const MadeUpPrinters&) = delete;
  MadeUpPrinters& operator=(const MadeUpPrinters&) = delete;

  static void use(std::vector<Queue> queues, std::string usual) {
    std::vector<std::unique_ptr<PrintQueues>> systems;
    systems.push_back(std::make_unique<MadeUpQueues>(std::move(queues), std::move(usual)));
    systems.push_back(makePdfFilePrinter());
    setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
    InitPrinters();
  }

 private:
  VSetPrn default_ = gDefaultPrn;
  SheetMeasures metrics_ = gPrintMetrics;
  bool measured_ = gPrinterMeasured;
};

}  // namespace qor::test
