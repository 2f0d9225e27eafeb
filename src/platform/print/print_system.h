// The printers of the system, those of all print systems together. What they tell is asked once and
// kept until refresh().
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/print/print_questions.h"

namespace qor {

class PrintSystem {
 public:
  // Printers are listed in the order of the systems, and the first one with a default has it.
  // `missing` says why there isn't another one.
  explicit PrintSystem(std::vector<std::unique_ptr<PrintQueues>> systems, std::string missing = {});

  const std::vector<QueueName>& list();
  const std::string& defaultName();

  // Null where there is no such printer. Valid until refresh() or learn().
  const Printer* find(const std::string& name);

  // Whether what find() gives is known, so that nobody has to be asked.
  bool knows(const std::string& name) const { return printers_.contains(name); }
  // The list as far as it is known: before it was asked for, the printers that were.
  std::vector<QueueName> listSoFar() const;

  // Why printers of the machine may not be known: no print system is there, or it doesn't answer.
  // Empty where none of that is so.
  std::string trouble() const;

  // Throws FileError or PrintError.
  std::unique_ptr<PrintJob> open(const Printer& printer, const JobTicket& ticket);

  // Printers may have come and gone.
  void refresh();

  // For whoever asks in the background: whom to ask, and what they have told. Printers that a list
  // no longer names are forgotten, and so are those that didn't answer. True if it was news.
  const PrintSystems& systems() const { return systems_; }
  bool learn(PrinterNames names);
  bool learn(const std::string& name, KnownPrinter printer);

 private:
  const KnownPrinter& known(const std::string& name);

  PrintSystems systems_;
  std::string missing_;
  std::optional<std::vector<QueueName>> names_;
  std::optional<std::string> default_;
  std::map<std::string, KnownPrinter> printers_;
};

// The process' print system: that of the machine, where there is one, and the printer that makes
// PDF files.
PrintSystem& printSystem();

// Puts another in its place.
void setPrintSystem(std::unique_ptr<PrintSystem> system);

// Puts the printer that makes PDF files alone in its place: nobody is asked any more.
void useFilePrinterOnly();

}  // namespace qor
