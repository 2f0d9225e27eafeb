// Typing and pasting by rules.
#include "windows/ruled_edit.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "platform/qt/qt_text.h"

namespace qor {
namespace {

// A byte a character; those that the rules can't know become "?", which none of them takes.
std::string narrow(const QString& text) {
  return text.toLatin1().toStdString();
}

EditedText editedText(const QLineEdit& edit, const std::string& text) {
  return {text, edit.cursorPosition(), edit.selectionStart(),
          static_cast<int>(edit.selectionLength())};
}

// Such as Ctrl+C, which has a text on some systems.
bool isCommand(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
}

int stepOfKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Up) return 1;
  return event.key() == Qt::Key_Down ? -1 : 0;
}

}  // namespace

RuledEdit::RuledEdit(QLineEdit& edit, EditRule rule, Changed changed, Shown shown)
    : QObject(&edit),
      edit_(edit),
      rule_(std::move(rule)),
      changed_(std::move(changed)),
      shown_(std::move(shown)) {
  // What is dropped, or pasted by the menu, would get by the rule.
  edit.setAcceptDrops(false);
  edit.setContextMenuPolicy(Qt::NoContextMenu);
  edit.installEventFilter(this);
  connect(&edit, &QLineEdit::textEdited, this, &RuledEdit::correct);
}

void RuledEdit::stepBy(int steps) {
  const std::string stepped = steppedText(rule_, narrow(edit_.text()), steps);
  edit_.selectAll();
  edit_.insert(qtText(stepped));
}

bool RuledEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) showValue();
  if (edit_.isReadOnly() || !edit_.isEnabled()) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress: return takesKey(*static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod: return takesComposed(*static_cast<QInputMethodEvent*>(event));
    case QEvent::MouseButtonRelease:
      if (static_cast<QMouseEvent*>(event)->button() != Qt::MiddleButton) return false;
      edit_.deselect();
      paste(QClipboard::Selection);
      return true;
    default: return QObject::eventFilter(watched, event);
  }
}

// Keys that the rule lets pass are left to the edit.
bool RuledEdit::takesKey(const QKeyEvent& event) {
  if (stepsOrPastes(event)) return true;
  const QString text = event.text();
  if (text.isEmpty() || isCommand(event)) return false;
  const QString entering = typed(text.front());
  if (text == entering) return false;
  if (!entering.isEmpty()) {
    QKeyEvent other(event.type(), event.key(), event.modifiers(), entering);
    QCoreApplication::sendEvent(&edit_, &other);
  }
  return true;
}

bool RuledEdit::stepsOrPastes(const QKeyEvent& event) {
  if (const int step = stepOfKey(event); step != 0 && rule_.step != 0.0) {
    stepBy(step);
    return true;
  }
  if (!event.matches(QKeySequence::Paste)) return false;
  const bool ofSelection = event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  paste(ofSelection ? QClipboard::Selection : QClipboard::Clipboard);
  return true;
}

bool RuledEdit::takesComposed(const QInputMethodEvent& event) {
  const QString& text = event.commitString();
  if (text.isEmpty()) return false;
  if (text.size() > 1) {
    paste(text);
  } else if (const QString entering = typed(text.front()); !entering.isEmpty()) {
    edit_.insert(entering);
  }
  QInputMethodEvent rest(event.preeditString(), event.attributes());
  QCoreApplication::sendEvent(&edit_, &rest);
  return true;
}

QString RuledEdit::typed(QChar character) const {
  const std::string text = narrow(edit_.text());
  const TypedChar entering = rule_.typed(editedText(edit_, text), narrow(character).front());
  return entering ? QString(QLatin1Char(*entering)) : QString();
}

void RuledEdit::paste(const QString& text) {
  const std::string present = narrow(edit_.text());
  const auto entering = pastedText(rule_, editedText(edit_, present), narrow(text));
  if (entering) edit_.insert(qtText(*entering));
}

void RuledEdit::paste(QClipboard::Mode mode) {
  paste(QGuiApplication::clipboard()->text(mode));
}

void RuledEdit::correct() {
  const std::string text = narrow(edit_.text());
  const CheckedText checked = rule_.changed(text);
  if (checked.text != text) edit_.setText(qtText(checked.text));
  changed_(checked);
}

void RuledEdit::showValue() {
  if (!shown_) return;
  if (const QString text = shown_(); text != edit_.text()) edit_.setText(text);
}

}  // namespace qor
