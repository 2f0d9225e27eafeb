// What is found out about pages once they are on view: how they begin, and what of them isn't
// shown. It is told in the status bar and in a bar above the pages.
#pragma once

#include <QObject>

namespace qor {

class GapReader;
class NoteBar;
class PageShow;
struct ViewDesk;

class PageNotesWatch : public QObject {
  Q_OBJECT

 public:
  PageNotesWatch(ViewDesk& desk, PageShow& pages);

  // Looks at the pages on view, when nothing else is to do.
  void lookCloser();

  // Looks at them no longer, as before the document is changed.
  void stop();

  // True once a page was on view of the report as its file now is.
  bool hasShownReport() const;

  // Reads the report in another code page: for this view, at once; no set is changed.
  void mnuCodePageClick(int codePage);

  void retranslate();

 signals:
  void pageWanted();      // the page on view begins otherwise than when it was shown
  void wideViewWanted();  // the user wants to see what the sheet doesn't show

 private:
  void tellNotes();
  void stBarMessageClick();

  ViewDesk& desk_;
  PageShow& pages_;
  NoteBar* bar_;
  GapReader* gap_;
  bool seen_ = false;       // a page was on view
  bool overflows_ = false;  // the status bar tells of text outside the sheet
};

}  // namespace qor
