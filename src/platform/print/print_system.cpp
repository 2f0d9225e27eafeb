// All printers, and the process' own list of them.
#include "platform/print/print_system.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/errors.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/system_queues.h"
#include "platform/system/module.h"

namespace qor {
namespace {

std::unique_ptr<PrintSystem>& current() {
  static std::unique_ptr<PrintSystem> system;
  return system;
}

std::unique_ptr<PrintSystem> makePrintSystem() {
  std::vector<std::unique_ptr<PrintQueues>> systems;
  std::string missing;
  if (auto queues = loadSystemQueues()) {
    systems.push_back(std::move(queues));
  } else {
    missing = moduleError();
  }
  systems.push_back(makePdfFilePrinter());
  return std::make_unique<PrintSystem>(std::move(systems), std::move(missing));
}

}  // namespace

PrintSystem::PrintSystem(std::vector<std::unique_ptr<PrintQueues>> systems, std::string missing)
    : systems_(std::make_move_iterator(systems.begin()), std::make_move_iterator(systems.end())),
      missing_(std::move(missing)) {
}

const std::vector<QueueName>& PrintSystem::list() {
  if (!names_) learn(askForNames(systems_));
  return *names_;
}

std::vector<QueueName> PrintSystem::listSoFar() const {
  if (names_) return *names_;
  std::vector<QueueName> names;
  for (const auto& [name, known] : printers_) {
    const auto& printer = known.printer;
    if (printer && printer->name == name)
      names.push_back({printer->name, printer->driver, printer->port});
  }
  return names;
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

const KnownPrinter& PrintSystem::known(const std::string& name) {
  if (!knows(name)) learn(name, askForPrinter(systems_, name));
  return printers_.at(name);
}

const Printer* PrintSystem::find(const std::string& name) {
  const KnownPrinter& found = known(name);
  return found.printer ? &*found.printer : nullptr;
}

std::string PrintSystem::trouble() const {
  for (const auto& system : systems_) {
    if (std::string trouble = system->trouble(); !trouble.empty()) return trouble;
  }
  return missing_;
}

std::unique_ptr<PrintJob> PrintSystem::open(const Printer& printer, const JobTicket& ticket) {
  const auto system = known(printer.name).system;
  if (system == nullptr) throw PrintError(printer.name + ": the printer is gone");
  return system->open(printer.name, ticket);
}

void PrintSystem::refresh() {
  names_.reset();
  default_.reset();
  printers_.clear();
}

bool PrintSystem::learn(PrinterNames names) {
  const auto forgotten = std::erase_if(printers_, [&names](const auto& entry) {
    const auto& printer = entry.second.printer;
    return !printer ||
           std::none_of(names.names.begin(), names.names.end(),
                        [&printer](const QueueName& queue) { return queue.name == printer->name; });
  });
  const bool isNews = forgotten > 0 || names_ != names.names || default_ != names.usual;
  names_ = std::move(names.names);
  default_ = std::move(names.usual);
  return isNews;
}

bool PrintSystem::learn(const std::string& name, KnownPrinter printer) {
  const auto present = printers_.find(name);
  if (present != printers_.end() && present->second == printer) return false;
  // The queue may be known by another spelling.
  if (printer.printer) printers_.insert_or_assign(printer.printer->name, printer);
  printers_.insert_or_assign(name, std::move(printer));
  return true;
}

PrintSystem& printSystem() {
  if (!current()) current() = makePrintSystem();
  return *current();
}

void setPrintSystem(std::unique_ptr<PrintSystem> system) {
  current() = std::move(system);
}

void useFilePrinterOnly() {
  std::vector<std::unique_ptr<PrintQueues>> systems;
  systems.push_back(makePdfFilePrinter());
  setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
}

}  // namespace qor
