// Printing and exporting with no window.
#include "app/batch.h"

#include <exception>
#include <string>

#include "app/side_files.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "document/vdoc.h"
#include "export/exporters.h"
#include "platform/messages.h"
#include "settings/printers.h"

namespace qor {
namespace {

// The whole of a print but for the clean-up behind it.
void printReport() {
  if (!VDoc::OpenFile()) throw kErrorOpenDocument;
  InitPrinters();
  // Nobody looks again at what a writer adds later: what is there is printed, to its last byte.
  AppOptions.DynamicMode = false;
  VDoc doc;
  doc.ScanPages(false);
  doc.Settings.LoadSet();
  if (doc.SelectPrinter()) {
    doc.PrintAll();
  } else {
    writeErrorLine(AppOptions.PrinterName +
                   ": there is no such printer, or the print system doesn't answer");
  }
}

}  // namespace

int PrintWithoutInterface() {
  if (AppOptions.FileName.empty()) return 0;
  bool failed = true;
  try {
    printReport();
    failed = false;
  } catch (int) {
    // The user has been told where the error arose.
  } catch (const std::exception& error) {
    showWarning(error.what());
  } catch (const std::string& text) {
    showWarning(text + AppOptions.FileName);
  }
  DeleteReport(ListedFiles::keep);
  return failed ? -1 : 1;
}

int ExportWithoutInterface() {
  if (AppOptions.FileName.empty()) return 0;
  try {
    // A report that can't be read must not replace an earlier export by an empty one.
    if (!VDoc::OpenFile()) return -1;
    // Nobody looks again at what a writer adds later: what is there is exported, to its last byte.
    AppOptions.DynamicMode = false;
    VDoc doc;
    doc.ScanPages(false);
    doc.Settings.ReloadSet();
    ExportByExtension(doc);
  } catch (int) {
    // The report stays, also under DeleteAfterPrint: nothing came of it.
    return -1;
  }
  DeleteReport(ListedFiles::keep);
  return 1;
}

}  // namespace qor
