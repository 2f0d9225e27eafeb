// The preview window: toolbar, scrolling area with the pages, list of pages, status bar. It shows a
// document that somebody else owns, remembers the user's view, and calls the other forms. Order of
// calls: constructor, SetDocument, show. What is shown where is computed in preview/model.
#pragma once

#include <QMainWindow>
#include <memory>

#include "platform/system/messages.h"
#include "window_model/growth_watch.h"
#include "window_model/page_cursor.h"
#include "window_model/view_state.h"
#include "windows/view/status_panels.h"
#include "windows/view/view_commands.h"

class QKeyEvent;
class QMessageBox;
class QScrollBar;
class QTimer;

namespace Ui {
class TfrmView;
}

namespace qor {

class GapReader;
class NoteBar;
class PageListModel;
class PassingHint;
class UserSettings;
class VDoc;
class VDocPage;
class VPage;
struct ViewMenu;

class TfrmView : public QMainWindow {
  Q_OBJECT

 public:
  // FormCreate. The settings must outlive the window.
  TfrmView(UserSettings& settings, ViewCommands commands);
  ~TfrmView() override;  // FormDestroy

  // The document on show, and its page that is loaded; both null to let go of them.
  void SetDocument(VDoc* doc, VDocPage* page);

  // Messages of the document code while the window is open, for the status bar. An error has a box,
  // too, but where the page area tells it already.
  void showMessage(MessageKind kind, const QString& text);

  // Re-reads the page and shows it, or says why not.
  void ShowPage();

  // True once a page was on view of the report as its file now is.
  bool hasShownReport() const;

  // One tick of the timer that follows a growing report.
  void TimerDynamicBlincTimer();

  // Commands.
  void cmdView_PageMoveTo(PageMove move);
  void cmbPagesChange();
  void cmbZoomChange();
  void cmdView_ZoomInClick();
  void cmdView_ZoomOutClick();
  void mnuZoomListClick(int tag);
  void mnuActualSizeClick();
  void mnuFitWidthClick();
  void mnuFitPageClick();
  void cmdView_SetPreviewTypeClick(int type);
  void rbMultiPageViewClick(bool several);
  void cmdView_SetListViewClick();
  void mnuListViewClick();
  void mnuUnprintableClick();
  void mnuFullScreenClick();
  void ShowPageScale();
  void UpDown1Click();
  void cmdSettings_Click();
  void cmdView_ConvertClick();
  void cmdView_MailClick();
  void chooseLanguage(int codePage);
  void mnuCodePageClick(int codePage);
  void stBarMessageClick();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void connectTools();
  void connectEdits();
  void connectPages();

  void FormShow();
  void FormClose();
  void FormResize();
  void showDates();

  // Messages.
  void windowIsOnScreen();
  void showErrorBoxSoon();
  void showErrorBox();
  void centreErrorBox();

  // Pages.
  void showCurrentPage();
  void setPageTotal(int total);
  void goToPage(int number);
  void markPage(int number);
  bool loadPage();
  bool keepsLoadedPage();
  void releasePage();
  void forgetPage();
  void showLoadedPage();
  void showMulti();
  void updateArea();
  void updateMoves();
  void showPageStatus();
  void showPageNumber();
  void describeView();
  void showFileState();
  QString reasonForNoPages();
  void lookCloser();
  void tellNotes();
  void fillPageList();
  void selectInPageList();
  void lblPageCurrentClick();
  void txtPageCurrentEditExit();
  void leavePageEdit();
  void cancelPageEdit();
  void lstPagesClick();
  void lstPagesClickAgain(const QModelIndex& line);

  // Views.
  void zoomFromView(int direction, const QPoint& anchor);
  void zoomInList(int direction);
  void zoomAround(const QPoint& anchor, int entry, std::int32_t fit = 0);
  std::int32_t wantedZoom() const;
  void showZoom();
  void openPrinter(std::int32_t scale, bool flag);
  void openPrinterForView();
  void applyFullWindow();
  void keepState();

  // Keys.
  bool FormKeyDown(const QKeyEvent& event);
  bool belongsToFocus(const QKeyEvent& event) const;
  bool commandKey(const QKeyEvent& event);
  bool zoomKey(const QKeyEvent& event);
  bool movementKey(const QKeyEvent& event);
  void pageKey(PageMove move, bool leap);
  QScrollBar* barOf(Qt::KeyboardModifiers modifiers) const;
  void homeKey(Qt::KeyboardModifiers modifiers);
  void endKey(Qt::KeyboardModifiers modifiers);
  void scrollVertically(int steps);
  void scrollHorizontally(int steps);
  void replayKey(int key);
  void turnPage(int direction);
  void startCalculator();

  // Menu and captions.
  void createMenu();
  void enableCommands();
  void showPopup(const QPoint& place);
  void updateMenu();
  void applyCaptions();
  void nameControls();
  void fillCodePageMenu();
  void printChosenPages();
  void followGrowth();

  std::unique_ptr<Ui::TfrmView> ui_;
  UserSettings& settings_;
  ViewCommands commands_;
  PageCursor cursor_;
  GrowthWatch growth_;
  ViewState state_;
  ViewState stored_;  // the state as it was stored last
  VDoc* doc_ = nullptr;
  VDocPage* page_ = nullptr;  // on show, loaded
  VPage* page_control_;
  PageListModel* pageList_;
  StatusPanels status_;
  PassingHint* hint_;
  NoteBar* notes_;
  std::unique_ptr<ViewMenu> menu_;
  QTimer* TimerDynamicBlinc_;
  GapReader* gap_;
  QMessageBox* errorBox_ = nullptr;
  QString lastError_;  // since the page was asked for
  QString shownError_;
  QString boxedError_;    // that waits for its box
  QPoint boxPlace_;       // of the box, as it was put over the window
  std::int32_t fit_ = 0;  // kWholeWidth or kWholePage, which no entry of the list stands for
  std::int32_t zoom_on_view_ = 0;  // percent, 0 where no page is shown
  QString standingMessage_;        // for the status bar while there is nothing else to say
  bool shown_ = false;
  bool ready_ = false;     // pages are shown from now on
  bool onScreen_ = false;  // boxes stand over the window from now on
  bool closed_ = false;
  bool firstPageShown_ = false;
  bool seen_ = false;       // a page was on view
  bool overflows_ = false;  // the status bar tells of text outside the sheet
};

}  // namespace qor
