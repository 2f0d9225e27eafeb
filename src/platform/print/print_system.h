// The printers of the system, those of all print systems together. What they tell is asked once and
// kept until refresh().
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/print/printer.h"

namespace qor {

class PrintSystem {
 public:
  // Printers are listed in the order of the systems, and the first one with a default has it.
  explicit PrintSystem(std::vector<std::unique_ptr<PrintQueues>> systems);

  const std::vector<QueueName>& list();
  const std::string& defaultName();

  // Null where there is no such printer. Valid until refresh().
  const Printer* find(const std::string& name);

  // Throws FileError or PrintError.
  std::unique_ptr<PrintJob> open(const Printer& printer, const JobTicket& ticket);

  // Printers may have come and gone.
  void refresh();

 private:
  struct KnownPrinter {
    PrintQueues* system = nullptr;
    std::optional<Printer> printer;
  };

  const KnownPrinter& known(const std::string& name);

  std::vector<std::unique_ptr<PrintQueues>> systems_;
  std::optional<std::vector<QueueName>> names_;
  std::optional<std::string> default_;
  std::map<std::string, KnownPrinter> printers_;
};

// The process' print system: that of the machine, where there is one, and the printer that makes
// PDF files.
PrintSystem& printSystem();

// Puts another in its place.
void setPrintSystem(std::unique_ptr<PrintSystem> system);

}  // namespace qor
