// The progress of jobs.
#include "windows/job_progress.h"

#include <QApplication>
#include <QProgressDialog>
#include <utility>

#include "platform/qt/qt_text.h"
#include "window_model/job_speed.h"
#include "window_model/preview_texts.h"

namespace qor {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kSilence{500};  // of short jobs
constexpr milliseconds kPause{30};     // between two looks at events
constexpr int kLeastWidth = 320;       // pixels

}  // namespace

JobProgress::JobProgress(QWidget* window, QString title, QString cancelText, Clock clock)
    : window_(window),
      title_(std::move(title)),
      cancel_text_(std::move(cancelText)),
      clock_(std::move(clock)),
      started_(clock_()),
      looked_(started_) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

JobProgress::~JobProgress() {
  if (!dialog_) QApplication::restoreOverrideCursor();
}

PageProgress JobProgress::callback() {
  return [this](std::int32_t page, std::int32_t pages) { return goesOn(page, pages); };
}

bool JobProgress::goesOn(std::int32_t page, std::int32_t pages) {
  if (dialog_ && dialog_->wasCanceled()) return false;
  if (clock_() - looked_ < (dialog_ ? kPause : kSilence)) return true;
  // Behind the last page there is nothing to wait for.
  if (!dialog_ && page >= pages) return true;
  if (!dialog_) open();
  tell(page, pages);
  looked_ = clock_();
  return !dialog_->wasCanceled();
}

// Closing the dialog cancels, be it the user or the application's end that closes it.
void JobProgress::open() {
  dialog_ = std::make_unique<QProgressDialog>(window_);
  dialog_->setWindowTitle(title_);
  dialog_->setWindowModality(Qt::ApplicationModal);
  dialog_->setCancelButtonText(cancel_text_);
  dialog_->setMinimumWidth(kLeastWidth);
  dialog_->setAutoReset(false);
  QObject::connect(dialog_.get(), &QDialog::rejected, dialog_.get(), &QProgressDialog::cancel);
  QApplication::restoreOverrideCursor();
}

void JobProgress::tell(std::int32_t page, std::int32_t pages) {
  const auto taken = std::chrono::duration_cast<milliseconds>(clock_() - started_);
  const std::string speed = jobSpeedText(page, pages, taken);
  dialog_->setLabelText(qtText(pageOfText(page, pages) + (speed.empty() ? "" : "\n" + speed)));
  dialog_->setMaximum(pages);
  dialog_->show();
  dialog_->setValue(page);
  QApplication::processEvents();
}

}  // namespace qor
