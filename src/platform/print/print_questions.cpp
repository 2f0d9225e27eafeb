// Asking print systems.
#include "platform/print/print_questions.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace qor {
namespace {

bool isListed(const std::vector<QueueName>& names, const std::string& name) {
  return std::any_of(names.begin(), names.end(),
                     [&name](const QueueName& queue) { return queue.name == name; });
}

}  // namespace

PrinterNames askForNames(const PrintSystems& systems) {
  PrinterNames all;
  for (const auto& system : systems) {
    auto names = system->list();
    std::move(names.begin(), names.end(), std::back_inserter(all.names));
  }
  for (const auto& system : systems) {
    // A default may be told that is not there.
    if (const std::string name = system->defaultName(); isListed(all.names, name)) {
      all.usual = name;
      break;
    }
  }
  return all;
}

KnownPrinter askForPrinter(const PrintSystems& systems, const std::string& name) {
  for (const auto& system : systems) {
    if (const auto queue = system->find(name)) return {system, printerOf(*queue)};
  }
  return {};
}

}  // namespace qor
