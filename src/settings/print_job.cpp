// Print jobs: pages of the document, drawn one by one on a printer's sheet. A job that fails leaves
// one line on standard error and nothing else: the report stays as it is.
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "base/errors.h"
#include "base/path.h"
#include "base/run_options.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/canvas/canvas.h"
#include "platform/print/print_system.h"
#include "platform/system/messages.h"
#include "render/page_walk.h"
#include "render/sheet.h"
#include "settings/printers.h"

namespace qor {
namespace {

// Where the printer that makes files puts a job that names none: beside the report.
std::string fileBeside(const std::string& report) {
  return std::string(directoryOf(report)).append(baseNameOf(report)).append("(print).pdf");
}

// A job of one document. It says once what went wrong and then takes nothing more.
class PrintRun {
 public:
  PrintRun(const VDoc& doc, const RunOptions& run, std::string_view title,
           const std::string& output)
      : report_(run.report) {
    LoadCodePage(doc.Settings.Page.BaseCodePage);
    context_ = CreatePrintDC(run.printer, doc.Settings.Page, doc.PrintScale, doc.PrintScaleFlag);
    if (!context_) return;
    const DeviceCaps& caps = context_->caps();
    mapping_ = {double(gPrintMetrics.LogPixelsX), double(gPrintMetrics.LogPixelsY),
                caps.PhysicalOffsetX, caps.PhysicalOffsetY};
    attempt([&] { context_->startDocument({std::string(title), output, fileBeside(report_)}); });
    tellIfStopped(output);
  }

  bool going() const { return context_ != nullptr; }

  // The file that the job goes to couldn't be written.
  bool lost() const { return lost_; }

  void print(VDocPage& page) {
    page.Settings->Scr = screenForPrint(page.Settings->Page, page.Settings->Prn, kPictureDpi);
    Canvas& canvas = context_->startPage();
    canvas.reset();
    canvas.setMapping(mapping_);
    DrawPage(page, canvas);
    attempt([this] { context_->endPage(); });
  }

  void end() {
    attempt([this] { context_->endDocument(); });
  }

  // What scaling has changed is told as the device has it.
  void unscaleMetrics() const {
    if (going()) gPrintMetrics.LogPixelsX = context_->caps().LogPixelsX;
  }

 private:
  void attempt(const std::function<void()>& step) {
    if (!going()) return;
    try {
      step();
    } catch (const PrintError& error) {
      fail(error);
    } catch (const FileError& error) {
      lost_ = true;
      fail(error);
    }
  }

  void fail(const std::runtime_error& error) {
    writeErrorLine(report_ + ": not printed: " + error.what());
    context_.reset();
  }

  void tellIfStopped(const std::string& output) const {
    if (!going() || !output.empty() || !context_->printer().stopped) return;
    writeErrorLine(context_->printer().name + ": the printer is stopped, the job waits for it");
  }

  std::string report_;
  std::unique_ptr<PrintContext> context_;
  Mapping mapping_;
  bool lost_ = false;
};

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

bool VDoc::printPages(const RunOptions& options, const std::string& output, bool selectedOnly) {
  PrintRun run(*this, options, interfaceTexts().DocumentJobName, output);
  if (!run.going()) return !run.lost();
  if (options.report.empty()) throw ReportError("Error: not set file name for print");
  const auto file = OpenFile();
  if (!file) throw NumberedError(kErrorOpenDocument, options.report);
  bool any = false;
  for (VDocPage& page : Pages) {
    if (selectedOnly && !page.Selected) continue;
    any = true;
    const PrintedPage inUse(page);
    readUpTo(page.Number, *file);
    readPage(page, *file);
    run.print(page);
    if (!run.going()) return !run.lost();
    if (!selectedOnly) run.unscaleMetrics();
  }
  run.end();
  return any && !run.lost();
}

bool VDoc::PrintAll(const RunOptions& options) {
  return printPages(options, {}, false);
}

bool VDoc::PrintToFile(const RunOptions& options, const std::string& path) {
  return printPages(options, path, false);
}

bool VDoc::PrintSelected(const RunOptions& options) {
  SelectPages();
  return printPages(options, {}, true);
}

bool VDoc::PrintPage(const RunOptions& options, std::int32_t number) {
  PrintRun run(*this, options, std::string(interfaceTexts().PageJobName) + std::to_string(number),
               {});
  if (!run.going()) return !run.lost();
  ReadUpTo(number);
  VDocPage* page = GetPage(number);
  if (page == nullptr) return false;
  const PrintedPage inUse(*page);
  if (!page->Loaded) return false;
  run.print(*page);
  run.end();
  return !run.lost();
}

}  // namespace qor
