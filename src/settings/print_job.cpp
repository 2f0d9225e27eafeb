// Print jobs: pages of the document, drawn one by one on a printer's sheet. A job that fails is
// taken back, and says in its outcome why: the report stays as it is.
#include <algorithm>
#include <string>
#include <vector>

#include "base/errors.h"
#include "base/path.h"
#include "base/run_options.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/page_loop.h"
#include "document/report_information.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/canvas/canvas.h"
#include "platform/print/print_system.h"
#include "render/page_walk.h"
#include "render/sheet.h"
#include "settings/printers.h"

namespace qor {

struct PrintTask {
  std::string title;
  std::vector<std::int32_t> pages;  // in the order in which they go out
  std::string output;               // a file in the printer's place; may be empty
  bool unscales = true;             // tells the metrics as the device has them behind each page
};

namespace {

using End = PrintOutcome::End;

// Where the printer that makes files puts a job that names none: beside the report.
std::string fileBeside(const std::string& report) {
  return std::string(directoryOf(report)).append(baseNameOf(report)).append("(print).pdf");
}

std::vector<std::int32_t> pagesToPrint(const VDoc& doc, bool selectedOnly) {
  std::vector<std::int32_t> numbers;
  for (const VDocPage& page : doc.Pages)
    if (page.Selected || !selectedOnly) numbers.push_back(page.Number);
  if (doc.Settings.Page.ReverseOrder) std::ranges::reverse(numbers);
  return numbers;
}

PrintTask documentTask(const VDoc& doc, bool selectedOnly, const std::string& output) {
  return {std::string(interfaceTexts().DocumentJobName), pagesToPrint(doc, selectedOnly), output,
          !selectedOnly};
}

Mapping mappingOf(const DeviceCaps& caps) {
  return {double(gPrintMetrics.LogPixelsX), double(gPrintMetrics.LogPixelsY), caps.PhysicalOffsetX,
          caps.PhysicalOffsetY};
}

void printPage(VDocPage& page, PrintContext& context, const Mapping& mapping) {
  page.Settings->Scr = screenForPrint(page.Settings->Page, page.Settings->Prn, kPictureDpi);
  Canvas& canvas = context.startPage();
  canvas.reset();
  canvas.setMapping(mapping);
  DrawPage(page, canvas);
  context.endPage();
}

PrintOutcome missing(const std::string& printer) {
  const std::string trouble = printSystem().trouble();
  return {End::noPrinter,
          printer + (trouble.empty() ? ": there is no such printer"
                                     : ": the print system can't be asked (" + trouble + ")"),
          {}};
}

PrintOutcome withoutPages(const VDoc& doc, const std::string& report) {
  const char* what =
      doc.PageCount == 0 ? ": the report has no pages" : ": none of the report's pages is chosen";
  return {End::noPages, report + what, {}};
}

PrintOutcome failed(End end, const std::string& report, const Error& error) {
  return {end, report + ": not printed: " + error.what(), {}};
}

PrintOutcome printed(const PrintContext& context) {
  const Printer& printer = context.printer();
  const bool waits = printer.stopped && context.file().empty();
  return {End::printed,
          waits ? printer.name + ": the printer is stopped, the job waits for it" : std::string(),
          context.file()};
}

// Lets go of a page's lines when it is printed, or fails to be.
class PrintedPage {
 public:
  explicit PrintedPage(VDocPage& page) : page_(page) {}
  ~PrintedPage() { page_.ReleaseLines(); }
  PrintedPage(const PrintedPage&) = delete;
  PrintedPage& operator=(const PrintedPage&) = delete;

 private:
  VDocPage& page_;
};

}  // namespace

bool VDoc::SelectPrinter(const std::string& printer) {
  const bool found = printer.empty() || printSystem().find(printer) != nullptr;
  const bool measured = found && MeasureNamedPrinter(printer, nullptr);
  Settings.Prn = gDefaultPrn;
  return measured;
}

void VDoc::sendPages(PrintContext& context, const InputFile& file, const PrintTask& task,
                     const PageProgress& progress) {
  const Mapping mapping = mappingOf(context.caps());
  const auto count = static_cast<std::int32_t>(task.pages.size());
  forEachNumber(count, progress, [&](std::int32_t place) {
    const std::int32_t number = task.pages[static_cast<std::size_t>(place - 1)];
    VDocPage& page = *findPage(number);
    const PrintedPage inUse(page);
    ReadUpTo(number, file);
    readPage(page, file);
    printPage(page, context, mapping);
    if (task.unscales) gPrintMetrics.LogPixelsX = context.caps().LogPixelsX;
  });
  RequireSameFile();
}

PrintOutcome VDoc::print(const RunOptions& options, const PrintTask& task,
                         const PageProgress& progress) {
  LoadCodePage(Settings.Page.BaseCodePage);
  const auto context = CreatePrintDC(options.printer, Settings.Page, PrintScale, PrintScaleFlag);
  if (!context) return missing(options.printer);
  if (options.report.empty()) throw ReportError("Error: not set file name for print");
  const auto file = OpenFile();
  if (!file) throw NumberedError(kErrorOpenDocument, options.report);
  if (task.pages.empty()) return withoutPages(*this, options.report);
  try {
    context->startDocument({drawnInformationOf(options, task.title, Settings.Page.BaseCodePage),
                            task.output, fileBeside(options.report)});
    sendPages(*context, *file, task, progress);
    context->endDocument();
  } catch (const StoppedError&) {
    return {End::stopped, {}, {}};
  } catch (const PrintError& error) {
    return failed(End::refused, options.report, error);
  } catch (const FileError& error) {
    if (error.kind() != ErrorKind::cannotWrite) throw;
    return failed(End::fileLost, options.report, error);
  }
  return printed(*context);
}

PrintOutcome VDoc::PrintAll(const RunOptions& options, const PageProgress& progress) {
  return print(options, documentTask(*this, false, {}), progress);
}

PrintOutcome VDoc::PrintToFile(const RunOptions& options, const std::string& path,
                               const PageProgress& progress) {
  return print(options, documentTask(*this, false, path), progress);
}

PrintOutcome VDoc::PrintSelected(const RunOptions& options, const PageProgress& progress) {
  SelectPages();
  return print(options, documentTask(*this, true, {}), progress);
}

PrintOutcome VDoc::PrintPage(const RunOptions& options, std::int32_t number,
                             const PageProgress& progress) {
  PrintTask task;
  task.title = std::string(interfaceTexts().PageJobName) + std::to_string(number);
  if (findPage(number) != nullptr) task.pages = {number};
  task.unscales = false;
  return print(options, task, progress);
}

}  // namespace qor
