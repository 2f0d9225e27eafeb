// Looking for losses.
#include "windows/export/pdf_loss_reader.h"

#include <QTimer>

#include "document/loaded_page.h"
#include "platform/system/messages.h"
#include "windows/idle_slice.h"

namespace qor {

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
  const MessageSink silence([](MessageKind, std::string_view) {});
  const PdfLosses before = found();
  if (!doSteps([this] { return lookAtNext(); }).more) stop();
  if (found() != before) emit foundMore();
}

bool PdfLossReader::lookAtNext() {
  if (page_ >= doc_->PageCount) return false;
  const LoadedPage page(*doc_, ++page_, PageMode::pictures);
  watch_.look(*page);
  return page_ < doc_->PageCount;
}

}  // namespace qor
