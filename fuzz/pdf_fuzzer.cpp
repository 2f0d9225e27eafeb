// A report of any bytes as a PDF document: exported through the markup, and printed into a file.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "export/pdf/pdf_export.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"
#include "scratch.h"

namespace {

using namespace qor;

const fuzz::Scratch scratch;

void usePdfPrinter() {
  std::vector<std::unique_ptr<PrintQueues>> systems;
  systems.push_back(makePdfFilePrinter());
  setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
}

void exportReport(std::string_view bytes, bool byPrinter) {
  AppOptions.DocCodePage = 866;
  AppOptions.FileName = scratch.write("report.txt", bytes);
  VDoc doc;
  doc.ScanPages(false);
  ExportTask task = {doc, scratch.write("report.pdf", ""), runOptions()};
  task.options.PrintToPdfPrinter = byPrinter;
  ExportPdf(task);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  usePdfPrinter();
  scratch.clear();
  fuzz::tolerant([=] { exportReport(fuzz::textOf(data, size), false); });
  fuzz::tolerant([=] { exportReport(fuzz::textOf(data, size), true); });
  return 0;
}
