// The preview window: toolbar, scrolling area with the pages, list of pages, status bar. It shows a
// document that somebody else owns and remembers the user's view. It wires its parts together,
// which do the work; what it can be asked to do stands in command_table.h. Order of calls:
// constructor, SetDocument, show.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "platform/system/messages.h"
#include "window_model/view_state.h"
#include "windows/view/view_commands.h"

class QKeyEvent;
class QTimer;

namespace qor {

struct Language;
class UserSettings;
class VDoc;
class VDocPage;
struct ViewParts;

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

  // The files that the user has had made.
  const std::vector<std::string>& madeFiles() const;

  // One tick of the timer that follows a growing report.
  void TimerDynamicBlincTimer();

  // Shows the page that the cursor names.
  void cmbPagesChange();

  // The language of the interface.
  void chooseLanguage(const Language& language);

  // Runs a command. Where it fails the reason is told, and the page shown again: nothing that a
  // command or its form throws leaves the window without a page.
  void run(const std::function<void()>& command);
  void run(void (*command)(TfrmView&));

  ViewParts& parts() { return *parts_; }
  const ViewParts& parts() const { return *parts_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void connectPages();
  void connectParts();
  void connectMenu();

  void FormShow();
  void FormClose();
  void FormResize();
  bool FormKeyDown(const QKeyEvent& event);

  void showTotal();
  void followGrowth();
  void tellMarked();
  void updateCommands();
  void applyCaptions();
  void keepState();

  UserSettings& settings_;
  std::unique_ptr<ViewParts> parts_;
  QTimer* TimerDynamicBlinc_;
  ViewState stored_;  // the state as it was stored last
  bool shown_ = false;
  bool close_wanted_ = false;  // while a job was at work
  bool closed_ = false;
};

}  // namespace qor
