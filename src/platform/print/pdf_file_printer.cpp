// The built-in printer: any sheet, no margins, and a job is a file.
#include "platform/print/pdf_file_printer.h"

#include "base/text.h"
#include "platform/print/file_job.h"

namespace qor {
namespace {

QueueName itsName() {
  return {kPdfFilePrinter, "Print To PDF", "PORTPROMPT:"};
}

// The queue that tells nothing takes every paper at 600 dots per inch.
class PdfFilePrinter : public PrintQueues {
 public:
  std::vector<QueueName> list() override { return {itsName()}; }
  std::string defaultName() override { return kPdfFilePrinter; }

  std::optional<Queue> find(const std::string& name) override {
    if (!isPdfFilePrinter(name)) return std::nullopt;
    Queue queue;
    queue.id = itsName();
    return queue;
  }

  std::unique_ptr<PrintJob> open(const std::string&, const JobTicket& ticket) override {
    return std::make_unique<FileJob>(ticket.fallbackFile, LinkTarget::spared);
  }
};

}  // namespace

bool isPdfFilePrinter(std::string_view name) {
  return lowerAscii(name) == lowerAscii(kPdfFilePrinter);
}

std::unique_ptr<PrintQueues> makePdfFilePrinter() {
  return std::make_unique<PdfFilePrinter>();
}

}  // namespace qor
