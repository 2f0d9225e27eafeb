// Looking for losses.
#include "windows/export/pdf_loss_reader.h"

#include <QElapsedTimer>
#include <QTimer>

#include "document/loaded_page.h"
#include "windows/failure_text.h"

namespace qor {
namespace {

constexpr qint64 kSlice = 12;  // ms, before the window answers again

}  // namespace

PdfLossReader::PdfLossReader(QObject* parent) : QObject(parent), idle_(new QTimer(this)) {
  connect(idle_, &QTimer::timeout, this, &PdfLossReader::readSlice);
}

void PdfLossReader::watch(VDoc& doc) {
  doc_ = &doc;
  idle_->start(0);
}

void PdfLossReader::stop() {
  idle_->stop();
}

// A page that can't be read is told by the export.
void PdfLossReader::readSlice() {
  QElapsedTimer time;
  time.start();
  const PdfLosses before = found();
  const QString failure = failureOf([&] {
    while (page_ < doc_->PageCount && time.elapsed() < kSlice) {
      const LoadedPage page(*doc_, ++page_, PageMode::pictures);
      watch_.look(*page);
    }
  });
  if (!failure.isNull() || page_ >= doc_->PageCount) stop();
  if (found() != before) emit foundMore();
}

}  // namespace qor
