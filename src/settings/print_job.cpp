// Print jobs: pages of the document, drawn one by one on a printer's sheet. A job that fails leaves
// one line on standard error and nothing else: the report stays as it is.
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
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
std::string fileBesideReport() {
  std::string name(directoryOf(AppOptions.FileName));
  return name.append(baseNameOf(AppOptions.FileName)).append("(print).pdf");
}

// A job of one document. It says once what went wrong and then takes nothing more.
class PrintRun {
 public:
  PrintRun(const VDoc& doc, std::string_view title, const std::string& output) {
    LoadCodePage(doc.Settings.Page.BaseCodePage);
    context_ = CreatePrintDC(AppOptions.PrinterName, doc.Settings.Page, doc.PrintScale,
                             doc.PrintScaleFlag);
    if (!context_) return;
    const DeviceCaps& caps = context_->caps();
    mapping_ = {double(gPrintMetrics.LogPixelsX), double(gPrintMetrics.LogPixelsY),
                caps.physicalOffsetX, caps.physicalOffsetY};
    attempt([&] { context_->startDocument({std::string(title), output, fileBesideReport()}); });
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
    if (going()) gPrintMetrics.LogPixelsX = context_->caps().logPixelsX;
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
    writeErrorLine(AppOptions.FileName + ": not printed: " + error.what());
    context_.reset();
  }

  void tellIfStopped(const std::string& output) const {
    if (!going() || !output.empty() || !context_->printer().stopped) return;
    writeErrorLine(context_->printer().name + ": the printer is stopped, the job waits for it");
  }

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

bool VDoc::SelectPrinter() {
  const std::string& name = AppOptions.PrinterName;
  const bool found = name.empty() || printSystem().find(name) != nullptr;
  const bool measured = found && MeasureNamedPrinter(name, nullptr);
  Settings.Prn = gDefaultPrn;
  return measured;
}

bool VDoc::printPages(const std::string& output, bool selectedOnly) {
  PrintRun run(*this, interfaceTexts().DocumentJobName, output);
  if (!run.going()) return !run.lost();
  if (AppOptions.FileName.empty()) throw std::string("Error: not set file name for print");
  const auto file = OpenFile();
  if (!file) throw kErrorOpenDocument;
  bool any = false;
  for (VDocPage& page : Pages) {
    if (selectedOnly && !page.Selected) continue;
    any = true;
    const PrintedPage inUse(page);
    readUpTo(page.Number, *file);
    readPage(page, *file, 0);
    run.print(page);
    if (!run.going()) return !run.lost();
    if (!selectedOnly) run.unscaleMetrics();
  }
  run.end();
  return any && !run.lost();
}

bool VDoc::PrintAll() {
  return printPages({}, false);
}

bool VDoc::PrintToFile(const std::string& path) {
  return printPages(path, false);
}

bool VDoc::PrintSelected() {
  SelectPages();
  return printPages({}, true);
}

bool VDoc::PrintPage(std::int32_t number) {
  PrintRun run(*this, std::string(interfaceTexts().PageJobName) + std::to_string(number), {});
  if (!run.going()) return !run.lost();
  ReadUpTo(number);
  VDocPage* page = GetPage(number, 0);
  if (page == nullptr) return false;
  const PrintedPage inUse(*page);
  if (!page->Loaded) return false;
  run.print(*page);
  run.end();
  return !run.lost();
}

}  // namespace qor
