// Marks the hits of a search over each of several pages on view, page after page while nothing else
// is to do: they must be read for it.
#pragma once

#include <QObject>
#include <QPointer>
#include <cstdint>
#include <optional>
#include <vector>

class QTimer;

namespace qor {

class MarksSheet;
class PageShow;
class TextFinder;
struct ViewDesk;

class SmallMarks : public QObject {
 public:
  SmallMarks(ViewDesk& desk, PageShow& pages, TextFinder& finder);

  // What is known of the hits has changed, or which pages are on view.
  void update();

  // Something else is looked for, or nothing any more.
  void clear();

 private:
  void markSlice();
  bool markNext();
  void mark(MarksSheet& sheet);

  ViewDesk& desk_;
  PageShow& pages_;
  TextFinder& finder_;
  QTimer* idle_;
  std::vector<QPointer<MarksSheet>> sheets_;  // each lies on a page and goes with it
};

}  // namespace qor
