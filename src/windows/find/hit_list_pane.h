// The list of all hits beside the list of pages.
#pragma once

#include <QWidget>

#include "search/search_hits.h"

class QLabel;
class QListView;

namespace qor {

class HitListModel;
class SizeLine;
class TextFinder;
struct ViewDesk;

class HitListPane : public QWidget {
  Q_OBJECT

 public:
  HitListPane(ViewDesk& desk, TextFinder& finder);

  void setShown(bool shown);
  // What is known of the hits has changed; the search is another one.
  void update();
  void restart();

  void retranslate();

 signals:
  void hitChosen(const HitPlace& place);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void selectPresent();
  void choose();
  void copy() const;

  ViewDesk& desk_;
  TextFinder& finder_;
  HitListModel* rows_;
  QLabel* count_;
  QListView* list_;
  SizeLine* line_;  // the mouse drags it
};

}  // namespace qor
