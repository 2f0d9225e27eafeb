// A report of any bytes as a PDF document: exported through the markup, and printed into a file.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "export/pdf/pdf_export.h"
#include "exported_report.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"

namespace {

using namespace qor;

const fuzz::Scratch scratch;

void usePdfPrinter() {
  std::vector<std::unique_ptr<PrintQueues>> systems;
  systems.push_back(makePdfFilePrinter());
  setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  usePdfPrinter();
  scratch.clear();
  for (const bool byPrinter : {false, true}) {
    fuzz::tolerant([=] {
      fuzz::exportReport(scratch, fuzz::textOf(data, size), 866, "report.pdf",
                         [byPrinter](ExportTask& task) {
                           task.options.PrintToPdfPrinter = byPrinter;
                           ExportPdf(task);
                         });
    });
  }
  return 0;
}
