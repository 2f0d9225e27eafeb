// Reads the pages before those on view that nobody has read yet, a slice at a time while nothing
// else is to do: a page begins where the page before it ended, and only then is known how it looks.
#pragma once

#include <QObject>
#include <vector>

#include "document/font_state.h"

class QTimer;

namespace qor {

class VDoc;

class GapReader : public QObject {
  Q_OBJECT

 public:
  explicit GapReader(QObject* parent);

  // Follows the pages from `first` to `last` of a document as they were shown just now.
  void watch(VDoc& doc, int first, int last);
  void stop();

 signals:
  // The pages begin otherwise than when they were shown.
  void startsChanged();

 private:
  void readSlice();
  bool readNext();
  std::vector<FontState> starts() const;

  QTimer* idle_;
  VDoc* doc_ = nullptr;
  int first_ = 0;
  int last_ = 0;
  std::vector<FontState> shown_;
};

}  // namespace qor
