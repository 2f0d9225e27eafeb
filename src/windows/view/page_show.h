// Shows the current page of the document, or several, or says why not. The document is somebody
// else's; the page on show is loaded, and let go of before anything else is done with the document.
// Order of calls: setDocument, start, ShowPage as often as something changed.
#pragma once

#include <QObject>

namespace qor {

class ErrorBox;
class PageZoom;
class VDoc;
class VDocPage;
struct ViewDesk;

class PageShow : public QObject {
  Q_OBJECT

 public:
  PageShow(ViewDesk& desk, PageZoom& zoom, ErrorBox& errors);

  // The document, and its page that is loaded; both null to let go of them.
  void setDocument(VDoc* doc, VDocPage* page);
  VDoc* document() const { return doc_; }

  // Tells the cursor how many pages the document has: a form may have left it with others.
  void countPages();

  // The page on show, while it is loaded; else null.
  VDocPage* loadedPage() const;

  // Pages are shown from now on.
  void start() { started_ = true; }
  bool isStarted() const { return started_; }

  // Re-reads the page and shows it, or says why not. While a job is at work that waits for resume.
  void ShowPage();

  // Shows the page at its size on a sheet that is shrunk to `percent`.
  void showScaled(int percent);

  // Lets go of the page, as before the document is changed. What is painted stays.
  void release();

  // The same where the document has taken the page back.
  void forget();

  // Behind release and a job: shows the page if that was asked for, else loads it again under what
  // is painted.
  void resume();

  // A page that will be read again anyway is not kept from before the window was shown.
  void dropFirstPage() { first_page_shown_ = true; }

 signals:
  void aboutToShow();  // a page, or the reason why there is none
  void roomCounted();  // for several pages, so that moves may lead elsewhere
  void pageShown();
  void shown();  // a page, or that reason
  void letGo();  // of the page that was on show: what was made of its lines ends

 private:
  void showLoaded();
  void showOne();
  void showSeveral();
  void updateArea();
  bool load();
  bool keepsLoaded();
  QString reasonForNoPages();

  ViewDesk& desk_;
  PageZoom& zoom_;
  ErrorBox& errors_;
  VDoc* doc_ = nullptr;
  VDocPage* page_ = nullptr;  // on show, loaded
  bool started_ = false;
  bool first_page_shown_ = false;
  bool wanted_ = false;  // while a job was at work
};

}  // namespace qor
