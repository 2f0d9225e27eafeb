// Forms beside the window.
#include "windows/view/form_calls.h"

#include <QScopedValueRollback>
#include <utility>

#include "base/run_options.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "windows/failure_text.h"
#include "windows/job_progress.h"
#include "windows/view/page_notes_watch.h"
#include "windows/view/page_show.h"
#include "windows/view/page_zoom.h"
#include "windows/view/paper_scale.h"
#include "windows/view/preview_printer.h"
#include "windows/view/view_desk.h"

namespace qor {

FormCalls::FormCalls(ViewDesk& desk, ViewCommands offered, const PageZoom& zoom, PageShow& pages,
                     PageNotesWatch& notes, PaperScale& scale)
    : desk_(desk),
      zoom_(zoom),
      offered_(std::move(offered)),
      pages_(pages),
      notes_(notes),
      scale_(scale) {
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
  openPrinter(scales, *doc);
  pages_.release();
  notes_.stop();
  PrintOutcome outcome;
  const QString failure = failureOf([&] {
    doc->ScanPages(false);
    if (prints) outcome = printChosenPages(*doc);
  });
  // A scaled job leaves its own resolution behind, which is none of the view's.
  if (scales) openPrinter(false, *doc);
  scale_.reset();
  desk_.growth.noteFile();
  desk_.firstPageWidth = 0;
  emit pagesIndexed();
  if (!failure.isNull()) {
    emit failed(failure);
  } else if (prints) {
    tell(outcome, doc->Settings.Page.NumOfCopies);
  }
}

void FormCalls::openPrinter(bool scaled, VDoc& doc) {
  scaled ? openPrinterScaled(desk_, percentInForce(), doc) : openPrinterUnscaled(doc);
}

// A zoom that fits something has no percentage of its own: the one that is seen stands for it.
std::int32_t FormCalls::percentInForce() const {
  const std::int32_t chosen = zoom_.wanted();
  return chosen > 0 ? chosen : zoom_.onView();
}

PrintOutcome FormCalls::printChosenPages(VDoc& doc) {
  const VSetPage& page = doc.Settings.Page;
  const RunOptions run = runOptions();
  const SettingsTexts& texts = settingsTexts();
  const QScopedValueRollback<bool> busy(desk_.busy, true);
  JobProgress job(desk_.page_control->window(), qtText(texts.printing), qtText(texts.cancel));
  switch (page.PrintPagesSet) {
    case kPrintAllPages: return doc.PrintAll(run, job.callback());
    case kPrintCurrentPage: return doc.PrintPage(run, desk_.cursor.current(), job.callback());
    case kPrintListedPages:
      // Pages that have just been indexed bear no marks of an earlier choice.
      if (!page.PagesForPrint.empty()) return doc.PrintSelected(run, job.callback());
      [[fallthrough]];
    default: return {PrintOutcome::End::noPages, {}, {}};
  }
}

// A user who has stopped a job knows of it.
void FormCalls::tell(const PrintOutcome& outcome, int copies) {
  using enum PrintOutcome::End;
  const SettingsTexts& texts = settingsTexts();
  if (outcome.end == noPages) {
    emit told(qtText(texts.nothingPrinted));
  } else if (outcome.end != printed && outcome.end != stopped) {
    emit failed(qtText(outcome.notice));
  } else if (!outcome.notice.empty()) {
    emit told(qtText(outcome.notice));
  } else if (!outcome.file.empty()) {
    emit told(qtText(texts.printedTo) + qtText(outcome.file) +
              qtText(copies == 1 ? std::string_view() : texts.eachPageOnce));
  }
}

void FormCalls::cmdView_ConvertClick() {
  callExport(offered_.convert);
}

void FormCalls::cmdView_MailClick() {
  callExport(offered_.mail);
}

// What is on view stays as it is.
void FormCalls::callExport(const std::function<void(const ExportCall&)>& form) {
  VDoc* doc = pages_.document();
  if (!form || doc == nullptr) return;
  const ExportView view = exportViewOf(desk_, percentInForce(), *doc);
  QStringList messages;
  pages_.release();
  notes_.stop();
  {
    const QScopedValueRollback<bool> busy(desk_.busy, true);
    form({*desk_.page_control->window(), *doc, desk_.state, view,
          [&messages](const QString& message) {
            if (!message.isEmpty()) messages.append(message);
          },
          [this](const QString& work) {
            desk_.status.setWork(work);
            desk_.ui.stBar->repaint();
          },
          desk_.made});
  }
  emit stateChanged();
  pages_.resume();
  emit viewKept();
  if (!messages.isEmpty()) desk_.status.setMessage(messages.join("; "));
}

}  // namespace qor
