// Reading gaps.
#include "windows/view/gap_reader.h"

#include <QTimer>

#include "document/vdoc.h"
#include "windows/idle_slice.h"

namespace qor {

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
  if (doSteps([this] { return readNext(); }).more) return;
  stop();
  if (doc_->KnownStarts() >= last_ && starts() != shown_) emit startsChanged();
}

bool GapReader::readNext() {
  const int before = doc_->KnownStarts();
  if (before >= last_) return false;
  doc_->ReadUpTo(before + 1);
  // The file is gone, or shorter than it was.
  if (doc_->KnownStarts() == before) last_ = before;
  return doc_->KnownStarts() < last_;
}

}  // namespace qor
