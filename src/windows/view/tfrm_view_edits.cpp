// The edits of the window, and what the mouse does in it.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QWindow>

#include "document/vdoc.h"
#include "ui_tfrm_view.h"
#include "windows/view/gap_reader.h"
#include "windows/view/page_scroll.h"
#include "windows/view/size_line.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {
namespace {

// True for an edit that is left for another control, and not with its window.
bool leavesForGood(QEvent* event) {
  if (event->type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

}  // namespace

void TfrmView::connectEdits() {
  auto* digits = new QRegularExpressionValidator(QRegularExpression("[0-9]*"), this);
  for (QLineEdit* edit : {ui_->txtPageCurrentEdit, ui_->txtZoom}) {
    edit->setValidator(digits);
    edit->setContextMenuPolicy(Qt::NoContextMenu);
  }
  ui_->txtPageCurrentEdit->installEventFilter(this);
  for (QLabel* label : {ui_->lblPageCurrent, ui_->lblPageTotal}) {
    label->setCursor(Qt::IBeamCursor);
    label->installEventFilter(this);
  }
  ui_->lblPageCurrent->setFocusPolicy(Qt::TabFocus);
  connect(ui_->txtPageCurrentEdit, &QLineEdit::returnPressed, this, [this] {
    const bool goes = ui_->txtPageCurrentEdit->text().toInt() > 0;
    ui_->pScroll->setFocus();
    if (goes) ui_->pScroll->scrollToStart();
  });
  connect(ui_->txtZoom, &QLineEdit::returnPressed, this, &TfrmView::ShowPageScale);
  connect(ui_->UpDown1, &QScrollBar::valueChanged, this, &TfrmView::UpDown1Click);
}

void TfrmView::connectPages() {
  // Pages are changed once the control that asks for it has done with its event.
  connect(page_control_, &VPage::placed, ui_->pScroll, &PageScroll::place);
  connect(page_control_, &VPage::pageClicked, this, &TfrmView::markPage, Qt::QueuedConnection);
  connect(
      page_control_, &VPage::pageDoubleClicked, this,
      [this](int number) {
        markPage(number);
        rbMultiPageViewClick(false);
      },
      Qt::QueuedConnection);
  connect(page_control_, &VPage::drawn, this, [this] { seen_ = true; });
  connect(page_control_, &VPage::drawingFailed, this,
          [this](const QString& reason) { status_.setMessage(reason); });
  connect(gap_, &GapReader::startsChanged, this, &TfrmView::ShowPage);
  status_.onClick([this] { stBarMessageClick(); });
  connect(ui_->pScroll, &PageScroll::resized, this, &TfrmView::FormResize);
  connect(ui_->pScroll, &PageScroll::wheelZoomed, this, &TfrmView::zoomFromView);
  connect(ui_->pScroll, &PageScroll::wheelBeyondEnd, this, &TfrmView::turnPage);
  ui_->pScroll->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(ui_->pScroll, &QWidget::customContextMenuRequested, this, &TfrmView::showPopup);
  connect(ui_->lstPages->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &TfrmView::lstPagesClick, Qt::QueuedConnection);
  connect(ui_->lstPages, &QListView::clicked, this, &TfrmView::lstPagesClickAgain);
}

bool TfrmView::eventFilter(QObject* watched, QEvent* event) {
  // Without pages they are off.
  const bool isLabel = (watched == ui_->lblPageCurrent || watched == ui_->lblPageTotal) &&
                       ui_->lblPageCurrent->isEnabled();
  const auto opens = [event] {
    if (event->type() == QEvent::MouseButtonPress) return true;
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
  };
  if (isLabel && opens()) {
    lblPageCurrentClick();
    return true;
  }
  if (watched == ui_->txtPageCurrentEdit && leavesForGood(event)) txtPageCurrentEditExit();
  if (watched == windowHandle() && event->type() == QEvent::Expose) windowIsOnScreen();
  // Keys for an open menu or list come by here, too.
  const bool isOurs = watched == windowHandle() && QApplication::activePopupWidget() == nullptr;
  if (isOurs && event->type() == QEvent::KeyPress) {
    // A key that is to come again comes before this one.
    QCoreApplication::sendPostedEvents(watched, QEvent::KeyPress);
    return FormKeyDown(*static_cast<QKeyEvent*>(event));
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace qor
