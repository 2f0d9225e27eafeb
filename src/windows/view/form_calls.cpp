// Forms beside the window.
#include "windows/view/form_calls.h"

#include "base/run_options.h"
#include "document/vdoc.h"
#include "platform/system/messages.h"
#include "windows/failure_text.h"
#include "windows/view/page_notes_watch.h"
#include "windows/view/page_show.h"
#include "windows/view/paper_scale.h"
#include "windows/view/preview_printer.h"
#include "windows/view/view_desk.h"

namespace qor {

FormCalls::FormCalls(ViewDesk& desk, ViewCommands offered, PageShow& pages, PageNotesWatch& notes,
                     PaperScale& scale)
    : desk_(desk), offered_(std::move(offered)), pages_(pages), notes_(notes), scale_(scale) {
}

void FormCalls::cmdSettings_Click() {
  VDoc* doc = pages_.document();
  if (!offered_.settings || doc == nullptr) return;
  scale_.reset();
  const SettingsAnswer answer =
      offered_.settings(*desk_.page_control->window(), *doc, desk_.state.PreviewType);
  if (answer.result == DialogResult::cancel) return;
  const bool prints = answer.result == DialogResult::print;
  const bool scales = prints && answer.scaleToPaper;
  scales ? openPrinterScaled(desk_, *doc) : openPrinterUnscaled(*doc);
  pages_.release();
  notes_.stop();
  const QString failure = failureOf([&] {
    doc->ScanPages(false);
    if (prints) printChosenPages(*doc);
  });
  // A scaled job leaves its own resolution behind, which is none of the view's.
  if (scales) openPrinterUnscaled(*doc);
  scale_.reset();
  desk_.growth.noteFile();
  emit pagesIndexed();
  if (!failure.isNull()) emit failed(failure);
}

void FormCalls::printChosenPages(VDoc& doc) {
  const RunOptions run = runOptions();
  PrintOutcome outcome;
  switch (doc.Settings.Page.PrintPagesSet) {
    case kPrintAllPages: outcome = doc.PrintAll(run); break;
    case kPrintCurrentPage: outcome = doc.PrintPage(run, desk_.cursor.current()); break;
    default: outcome = doc.PrintSelected(run);
  }
  if (!outcome.notice.empty()) writeErrorLine(outcome.notice);
}

// What is on view stays as it is.
void FormCalls::cmdView_ConvertClick() {
  VDoc* doc = pages_.document();
  if (!offered_.convert || doc == nullptr) return;
  pages_.release();
  offered_.convert(*doc, desk_.state);
  emit stateChanged();
  pages_.reload();
}

void FormCalls::cmdView_MailClick() {
  if (offered_.mail && pages_.document() != nullptr) offered_.mail(*pages_.document());
}

}  // namespace qor
