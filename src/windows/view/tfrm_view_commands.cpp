// What the window does through other forms, and following a report that grows.
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "document/vdoc.h"
#include "settings/print_scale.h"
#include "ui_tfrm_view.h"
#include "windows/failure_text.h"
#include "windows/view/gap_reader.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {
namespace {

constexpr std::int32_t kPrintAllPages = 0;
constexpr std::int32_t kPrintCurrentPage = 1;

}  // namespace

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
  growth_.noteFile();
  cmbPagesChange();
  if (!failure.isNull()) showMessage(MessageKind::error, failure);
}

void TfrmView::printChosenPages() {
  switch (doc_->Settings.Page.PrintPagesSet) {
    case kPrintAllPages: doc_->PrintAll(); break;
    case kPrintCurrentPage: doc_->PrintPage(cursor_.current()); break;
    default: doc_->PrintSelected();
  }
}

// What is on view stays as it is.
void TfrmView::cmdView_ConvertClick() {
  if (!commands_.convert || doc_ == nullptr) return;
  releasePage();
  commands_.convert(*doc_, state_);
  keepState();
  if (cursor_.total() > 0 && loadPage()) page_control_->usePage(page_);
}

void TfrmView::cmdView_MailClick() {
  if (commands_.mail && doc_ != nullptr) commands_.mail(*doc_);
}

void TfrmView::TimerDynamicBlincTimer() {
  const QString failure = failureOf([this] {
    const Growth growth = growth_.tick(doc_);
    if (growth == Growth::complete) TimerDynamicBlinc_->stop();
    if (growth != Growth::none) followGrowth();
  });
  if (!failure.isNull()) {
    forgetPage();
    gap_->stop();
    doc_->Clear();
    followGrowth();
    showMessage(MessageKind::error, failure);
  }
  QPalette colors = ui_->pTools->palette();
  if (growth_.blinks()) colors.setColor(QPalette::WindowText, Qt::red);
  ui_->lblPageTotal->setPalette(colors);
}

// The page on show stays; the first one appears by itself.
void TfrmView::followGrowth() {
  setPageTotal(doc_->PageCount);
  if (cursor_.current() > cursor_.total()) {
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
