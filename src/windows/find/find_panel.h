// Find in the report: the bar, the list of hits and the marks over the page, and what connects
// them.
#pragma once

#include <QObject>

#include "windows/find/hit_marks.h"
#include "windows/find/small_marks.h"
#include "windows/find/text_finder.h"

namespace qor {

class FindBar;
class HitListPane;
class UserSettings;

class FindPanel : public QObject {
  Q_OBJECT

 public:
  FindPanel(ViewDesk& desk, PageShow& pages, PageText& text, UserSettings& settings);

  void mnuFindClick();
  // The next hit (1) or the one before (-1); the bar where nothing is looked for yet.
  void move(int direction);

  // Takes the bar away, if it is there.
  bool close();

  // Scrolls until the present hit stands in the middle third of what is seen of its page.
  void scrollToPresent();

  TextFinder& finder() { return finder_; }
  // The counter of the bar, or why there is none.
  QString foundText() const;

  void retranslate();

 signals:
  void pageWanted(int number);  // then scrollToPresent
  void told();                  // another counter

 private:
  void startSearch();
  void tell();
  void noteText();
  void offerEarlier();

  ViewDesk& desk_;
  PageText& text_;
  UserSettings& settings_;
  TextFinder finder_;
  HitMarks marks_;
  SmallMarks small_marks_;
  FindBar* bar_;
  HitListPane* list_;
};

}  // namespace qor
