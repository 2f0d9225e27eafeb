// What the window does through other forms, and following a report that grows.
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "base/app_options.h"
#include "base/run_options.h"
#include "document/vdoc.h"
#include "settings/print_scale.h"
#include "ui_tfrm_view.h"
#include "windows/failure_text.h"
#include "windows/view/gap_reader.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {
namespace {}  // namespace

void TfrmView::cmdSettings_Click() {
  if (!commands_.settings || doc_ == nullptr) return;
  ui_->txtZoom->setText("100");
  const SettingsAnswer answer = commands_.settings(*doc_, state_.PreviewType);
  if (answer.result == DialogResult::cancel) return;
  const VSet& settings = doc_->Settings;
  const bool prints = answer.result == DialogResult::print;
  const bool scales = prints && answer.scaleToPaper;
  const ScaleQuestion question = {logicalDpiX(), zoomPercent(state_.ZoomID),
                                  settings.Scr.view_width};
  openPrinter(scales ? ComputePrintScale(question, settings.Page, settings.Prn) : kNaturalZoom,
              scales);
  releasePage();
  gap_->stop();
  const QString failure = failureOf([&] {
    doc_->ScanPages(false);
    if (prints) printChosenPages();
  });
  // A scaled job leaves its own resolution behind, which is none of the view's.
  if (scales) openPrinter(kNaturalZoom, false);
  ui_->txtZoom->setText("100");
  setPageTotal(doc_->PageCount);
  fillPageList();
  stamp_ = fileStamp(AppOptions.FileName);
  cmbPagesChange();
  if (!failure.isNull()) showMessage(MessageKind::error, failure);
}

void TfrmView::printChosenPages() {
  switch (doc_->Settings.Page.PrintPagesSet) {
    case kPrintAllPages: doc_->PrintAll(runOptions()); break;
    case kPrintCurrentPage: doc_->PrintPage(runOptions(), currentPage()); break;
    default: doc_->PrintSelected(runOptions());
  }
}

// What is on view stays as it is.
void TfrmView::cmdView_ConvertClick() {
  if (!commands_.convert || doc_ == nullptr) return;
  releasePage();
  commands_.convert(*doc_, state_);
  keepState();
  if (doc_->PageCount > 0 && loadPage()) page_control_->usePage(page_);
}

void TfrmView::cmdView_MailClick() {
  if (commands_.mail && doc_ != nullptr) commands_.mail(*doc_);
}

void TfrmView::TimerDynamicBlincTimer() {
  totalBlinks_ = !totalBlinks_;
  const QString failure = failureOf([this] {
    if (doc_ == nullptr || !doc_->FileChanged()) return;
    stamp_ = fileStamp(AppOptions.FileName);
    if (doc_->ScanPages(true)) {
      TimerDynamicBlinc_->stop();
      totalBlinks_ = false;
    }
    followGrowth();
  });
  if (!failure.isNull()) {
    forgetPage();
    gap_->stop();
    doc_->Clear();
    followGrowth();
    showMessage(MessageKind::error, failure);
  }
  QPalette colors = ui_->pTools->palette();
  if (totalBlinks_) colors.setColor(QPalette::WindowText, Qt::red);
  ui_->lblPageTotal->setPalette(colors);
}

// The page on show stays; the first one appears by itself.
void TfrmView::followGrowth() {
  setPageTotal(doc_->PageCount);
  if (currentPage() > doc_->PageCount) {
    forgetPage();
    cmbPagesChange();
  } else if (!page_control_->showsPages()) {
    cmbPagesChange();
  }
  showPageNumber();
  describeView();
  updateMoves();
  fillPageList();
}

}  // namespace qor
