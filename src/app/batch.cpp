// Printing and exporting with no window.
#include "app/batch.h"

#include <new>
#include <string>

#include "app/batch_export.h"
#include "app/side_files.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "base/run_options.h"
#include "document/vdoc.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/print_system.h"
#include "platform/system/failure.h"
#include "platform/system/messages.h"
#include "settings/printers.h"

namespace qor {
namespace {

// The whole of a print but for the clean-up behind it.
PrintOutcome printReport() {
  if (!VDoc::OpenFile()) throw NumberedError(kErrorOpenDocument, AppOptions.FileName);
  if (isPdfFilePrinter(AppOptions.PrinterName)) useFilePrinterOnly();
  InitPrinters();
  // Nobody looks again at what a writer adds later: what is there is printed, to its last byte.
  AppOptions.DynamicMode = false;
  VDoc doc;
  doc.ScanPages(false);
  doc.Settings.LoadSet();
  // The job tells of one that isn't there.
  doc.SelectPrinter(AppOptions.PrinterName);
  return doc.PrintAll(runOptions());
}

// Pages that nobody wanted in a file are there because the print system couldn't be asked.
void tellTrouble(const PrintOutcome& outcome) {
  const std::string trouble = printSystem().trouble();
  if (trouble.empty() || outcome.file.empty()) return;
  writeErrorLine(AppOptions.FileName + ": the print system can't be asked (" + trouble +
                 "), the pages go to " + outcome.file);
}

}  // namespace

int PrintWithoutInterface() {
  if (AppOptions.FileName.empty()) return 0;
  const UsedReport report;
  try {
    const PrintOutcome outcome = printReport();
    if (!outcome.notice.empty()) writeErrorLine(outcome.notice);
    tellTrouble(outcome);
    if (!outcome.cameToNothing()) report.cleanUp(ListedFiles::keep, {outcome.file});
    return 1;
  } catch (const std::bad_alloc&) {
    writeErrorLine(AppOptions.FileName + ": not enough memory to print it");
  } catch (...) {
    tellFailure();
  }
  return -1;
}

int ExportWithoutInterface(const std::function<void()>& raiseWall) {
  if (AppOptions.FileName.empty()) return 0;
  const UsedReport report;
  const BatchExport done = isSharedExport() ? exportInShares(raiseWall) : exportHere(raiseWall);
  if (!done.succeeded) return -1;
  // Where nothing was exported, the report stays, and so do its side files.
  if (!done.files.empty()) report.cleanUp(ListedFiles::keep, done.files);
  return 1;
}

}  // namespace qor
