// Questions to all print systems together, which nobody's memory answers. They may be asked in any
// thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/print/printer.h"

namespace qor {

// The first of them that knows a name has it.
using PrintSystems = std::vector<std::shared_ptr<PrintQueues>>;

// A printer and the system that it is of; nothing and null where none knows it.
struct KnownPrinter {
  std::shared_ptr<PrintQueues> system;
  std::optional<Printer> printer;

  bool operator==(const KnownPrinter&) const = default;
};

struct PrinterNames {
  std::vector<QueueName> names;  // in the order of the systems
  std::string usual;             // the default printer; empty where there is none
};

PrinterNames askForNames(const PrintSystems& systems);

KnownPrinter askForPrinter(const PrintSystems& systems, const std::string& name);

}  // namespace qor
