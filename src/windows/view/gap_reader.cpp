// Reading gaps.
#include "windows/view/gap_reader.h"

#include <QElapsedTimer>
#include <QTimer>

#include "document/vdoc.h"
#include "windows/failure_text.h"

namespace qor {
namespace {

constexpr qint64 kSlice = 12;  // ms, before the window answers again

}  // namespace

GapReader::GapReader(QObject* parent) : QObject(parent), idle_(new QTimer(this)) {
  connect(idle_, &QTimer::timeout, this, &GapReader::readSlice);
}

void GapReader::watch(VDoc& doc, int first, int last) {
  stop();
  if (doc.KnownStarts() >= last) return;
  doc_ = &doc;
  first_ = first;
  last_ = last;
  shown_ = starts();
  idle_->start(0);
}

void GapReader::stop() {
  idle_->stop();
}

std::vector<FontState> GapReader::starts() const {
  std::vector<FontState> fonts;
  for (int page = first_; page <= last_; ++page) fonts.push_back(doc_->FontAt(page));
  return fonts;
}

void GapReader::readSlice() {
  QElapsedTimer time;
  time.start();
  const QString failure = failureOf([&] {
    while (doc_->KnownStarts() < last_ && time.elapsed() < kSlice) {
      const int before = doc_->KnownStarts();
      doc_->ReadUpTo(before + 1);
      // The file is gone, or shorter than it was.
      if (doc_->KnownStarts() == before) last_ = before;
    }
  });
  if (failure.isNull() && doc_->KnownStarts() < last_) return;
  stop();
  if (failure.isNull() && starts() != shown_) emit startsChanged();
}

}  // namespace qor
