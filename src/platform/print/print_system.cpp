// All printers, and the process' own list of them.
#include "platform/print/print_system.h"

#include <iterator>
#include <utility>

#include "base/errors.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/system_queues.h"

namespace qor {
namespace {

std::unique_ptr<PrintSystem>& current() {
  static std::unique_ptr<PrintSystem> system;
  return system;
}

std::unique_ptr<PrintSystem> makePrintSystem() {
  std::vector<std::unique_ptr<PrintQueues>> systems;
  if (auto queues = loadSystemQueues()) systems.push_back(std::move(queues));
  systems.push_back(makePdfFilePrinter());
  return std::make_unique<PrintSystem>(std::move(systems));
}

}  // namespace

PrintSystem::PrintSystem(std::vector<std::unique_ptr<PrintQueues>> systems)
    : systems_(std::move(systems)) {
}

const std::vector<QueueName>& PrintSystem::list() {
  if (!names_) {
    names_.emplace();
    for (const auto& system : systems_) {
      auto names = system->list();
      std::move(names.begin(), names.end(), std::back_inserter(*names_));
    }
  }
  return *names_;
}

const std::string& PrintSystem::defaultName() {
  if (!default_) {
    default_.emplace();
    for (const auto& system : systems_) {
      std::string name = system->defaultName();
      // A default may be told that is not there.
      if (name.empty() || find(name) == nullptr) continue;
      *default_ = std::move(name);
      break;
    }
  }
  return *default_;
}

const PrintSystem::KnownPrinter& PrintSystem::known(const std::string& name) {
  const auto [place, isNew] = printers_.try_emplace(name);
  if (isNew) {
    for (const auto& system : systems_) {
      const auto queue = system->find(name);
      if (!queue) continue;
      place->second = {system.get(), printerOf(*queue)};
      // The queue may be known by another spelling.
      printers_.try_emplace(queue->id.name, place->second);
      break;
    }
  }
  return place->second;
}

const Printer* PrintSystem::find(const std::string& name) {
  const KnownPrinter& found = known(name);
  return found.printer ? &*found.printer : nullptr;
}

std::unique_ptr<PrintJob> PrintSystem::open(const Printer& printer, const JobTicket& ticket) {
  PrintQueues* system = known(printer.name).system;
  if (system == nullptr) throw PrintError(printer.name + ": the printer is gone");
  return system->open(printer.name, ticket);
}

void PrintSystem::refresh() {
  names_.reset();
  default_.reset();
  printers_.clear();
}

PrintSystem& printSystem() {
  if (!current()) current() = makePrintSystem();
  return *current();
}

void setPrintSystem(std::unique_ptr<PrintSystem> system) {
  current() = std::move(system);
}

}  // namespace qor
