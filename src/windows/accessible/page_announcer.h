// Tells those who hear the page what has become of it: another text, a caret that moved, a
// selection. While nobody listens it tells nothing.
#pragma once

#include <QAccessible>
#include <QObject>
#include <optional>

#include "window_model/text_selection.h"

namespace qor {

class PageSelection;
class SpokenNotice;
class SpokenPage;
class TextFinder;
struct ViewDesk;

class PageAnnouncer : public QObject, private QAccessible::ActivationObserver {
  Q_OBJECT

 public:
  PageAnnouncer(ViewDesk& desk, SpokenPage& page, SpokenNotice& notice, PageSelection& selection,
                TextFinder& finder);
  ~PageAnnouncer() override;

  // A page is on view, or the same anew, or another one of several is the current one.
  void tellPage();

 private:
  void accessibilityActiveChanged(bool active) override;
  void tellText(bool turned);
  void tellSelection();
  void tellHit();
  void tellCaret();

  ViewDesk& desk_;
  SpokenPage& page_;
  SpokenNotice& notice_;
  PageSelection& selection_;
  TextFinder& finder_;
  int told_page_ = 0;
  QString told_text_;  // as far as it goes with the news
  std::optional<TextSelection> told_selection_;
};

}  // namespace qor
