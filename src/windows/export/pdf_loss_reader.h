// Looks through a document in idle time for what a PDF of it doesn't show.
#pragma once

#include <QObject>

#include "export/pdf/pdf_losses.h"

class QTimer;

namespace qor {

class VDoc;

class PdfLossReader : public QObject {
  Q_OBJECT

 public:
  explicit PdfLossReader(QObject* parent);

  // From where it was on, a slice at a time. The document must stay until stop.
  void watch(VDoc& doc);
  void stop();

  // So far.
  const PdfLosses& found() const { return watch_.found(); }

 signals:
  void foundMore();

 private:
  void readSlice();
  bool lookAtNext();

  QTimer* idle_;
  VDoc* doc_ = nullptr;
  std::int32_t page_ = 0;  // that was looked at last
  PdfLossWatch watch_;
};

}  // namespace qor
