// The way of the preview: everything around its window.
#include "app/preview_report.h"

#include <string>
#include <vector>

#include "app/side_files.h"
#include "app/start_messages.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "document/vdoc.h"
#include "platform/system/messages.h"
#include "platform/system/module.h"
#include "settings/printers.h"
#include "window_model/window_module.h"

namespace qor {
namespace {

using Texts = std::vector<std::string>;

// The set of the default file, or that of the file that was named.
void loadSettings(VDoc& doc) {
  if (AppOptions.IniFileName.empty()) {
    doc.Settings.LoadSet(VSet::Use::look);
  } else {
    doc.Settings.ReloadSet();
  }
}

// The file that loading the default set names is not one that the user named.
void loadFirstSettings(VDoc& doc) {
  const bool named = !AppOptions.IniFileName.empty();
  loadSettings(doc);
  if (!named) AppOptions.IniFileName.clear();
}

void scanReport(VDoc& doc) {
  if (AppOptions.DynamicMode) {
    doc.ScanFirstPage();
  } else {
    doc.ScanPages(false);
  }
}

}  // namespace

void PreviewReport(StartMessages* messages) {
  // Ends at once: not even the default set is made.
  if (AppOptions.FileName.empty()) throw NumberedError(kErrorOpenDocument, {});
  InitPrinters();
  VDoc doc;
  loadFirstSettings(doc);
  doc.SelectPrinter(AppOptions.PrinterName);
  scanReport(doc);
  auto* runPreview = reinterpret_cast<RunPreview*>(moduleSymbol(kPreviewModule, kRunPreviewSymbol));
  if (runPreview == nullptr) {
    writeErrorLine(AppOptions.FileName + ": no window can be opened: " + moduleError());
    return;
  }
  // What the head of the report says of paper and font gives way to the set.
  Texts made;
  const Texts warnings = messages == nullptr ? Texts() : messages->take();
  const bool seen = runPreview(doc, loadSettings, warnings, made);
  if (seen) UsedReport().cleanUp(ListedFiles::erase, made);
}

void ShowStart() {
  auto* show = reinterpret_cast<ShowStartWindow*>(moduleSymbol(kPreviewModule, kShowStartSymbol));
  if (show != nullptr) show();
}

}  // namespace qor
