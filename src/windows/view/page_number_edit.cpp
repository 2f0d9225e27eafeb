// Typing page numbers.
#include "windows/view/page_number_edit.h"

#include <QKeyEvent>
#include <algorithm>

#include "windows/view/digits_only.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kFewestDigits = 3;  // of a page number that the window leaves room for
constexpr int kTypedDigits = 6;   // that can be typed at least
constexpr int kEditFrame = 14;    // and for what is around them in an edit, pixels

// True for an edit that is left for another control, and not with its window.
bool leavesForGood(QEvent* event) {
  if (event->type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

// True for a click, and for the keys that stand for one.
bool opensEdit(QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) return true;
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

}  // namespace

PageNumberEdit::PageNumberEdit(ViewDesk& desk) : desk_(desk) {
  Ui::TfrmView& ui = desk.ui;
  takeDigitsOnly(*ui.txtPageCurrentEdit);
  ui.txtPageCurrentEdit->installEventFilter(this);
  for (QLabel* label : {ui.lblPageCurrent, ui.lblPageTotal}) {
    label->setCursor(Qt::IBeamCursor);
    label->installEventFilter(this);
  }
  ui.lblPageCurrent->setFocusPolicy(Qt::TabFocus);
  connect(ui.txtPageCurrentEdit, &QLineEdit::returnPressed, this, [&ui] {
    const bool goes = ui.txtPageCurrentEdit->text().toInt() > 0;
    ui.pScroll->setFocus();
    if (goes) ui.pScroll->scrollToStart();
  });
}

void PageNumberEdit::showCurrent() {
  const QString number = QString::number(desk_.cursor.current());
  desk_.ui.lblPageCurrent->setText(number);
  desk_.ui.lblPageCurrent->setAccessibleDescription(number);
}

// The number before it takes the same room whatever it is, and while it is typed: nothing beside it
// moves away under the mouse.
void PageNumberEdit::showTotal() {
  const Ui::TfrmView& ui = desk_.ui;
  const int total = desk_.cursor.total();
  const QString digits = QString::number(total);
  ui.lblPageTotal->setText(digits);
  ui.lblPageTotal->setAccessibleDescription(digits);
  for (QWidget* label : {ui.lblPageCurrent, ui.lblPageOf, ui.lblPageTotal})
    label->setEnabled(total > 0);
  const int width = kEditFrame + ui.txtPageCurrentEdit->fontMetrics().horizontalAdvance(QString(
                                     std::max<qsizetype>(kFewestDigits, digits.size()), '0'));
  ui.lblPageCurrent->setFixedWidth(width);
  ui.txtPageCurrentEdit->setFixedWidth(width);
  ui.txtPageCurrentEdit->setMaxLength(std::max(kTypedDigits, static_cast<int>(digits.size())));
}

void PageNumberEdit::setBlinking(bool blinks) {
  QPalette colors = desk_.ui.pTools->palette();
  if (blinks) colors.setColor(QPalette::WindowText, Qt::red);
  desk_.ui.lblPageTotal->setPalette(colors);
}

bool PageNumberEdit::isVisible() const {
  return desk_.ui.txtPageCurrentEdit->isVisible();
}

// Also where the toolbar with it is hidden.
bool PageNumberEdit::isOpen() const {
  return !desk_.ui.txtPageCurrentEdit->isHidden();
}

void PageNumberEdit::lblPageCurrentClick() {
  QLineEdit& edit = *desk_.ui.txtPageCurrentEdit;
  desk_.ui.lblPageCurrent->hide();
  edit.setText(QString::number(desk_.cursor.current()));
  edit.show();
  edit.selectAll();
  edit.setFocus();
}

void PageNumberEdit::leave() {
  if (!isOpen()) return;
  desk_.ui.pScroll->setFocus();
  txtPageCurrentEditExit();
}

void PageNumberEdit::cancel() {
  desk_.ui.txtPageCurrentEdit->setText(QString::number(desk_.cursor.current()));
  leave();
}

void PageNumberEdit::txtPageCurrentEditExit() {
  if (!isOpen()) return;
  QLineEdit& edit = *desk_.ui.txtPageCurrentEdit;
  const int number = edit.text().toInt();
  edit.hide();
  desk_.ui.lblPageCurrent->show();
  const bool asked = edit.isModified() || number != desk_.cursor.current();
  if (number != 0 && asked) emit pageChosen(number);
}

bool PageNumberEdit::eventFilter(QObject* watched, QEvent* event) {
  const QWidget* edit = desk_.ui.txtPageCurrentEdit;
  // Without pages the labels are off.
  const bool isLabel = watched != edit && desk_.ui.lblPageCurrent->isEnabled();
  if (isLabel && opensEdit(event)) {
    lblPageCurrentClick();
    return true;
  }
  if (watched == edit && leavesForGood(event)) txtPageCurrentEditExit();
  return QObject::eventFilter(watched, event);
}

}  // namespace qor
