// What is looked for.
#include "windows/find/find_edit.h"

#include <QKeyEvent>
#include <algorithm>

namespace qor {

void FindEdit::setEarlier(const QStringList& texts) {
  earlier_ = texts;
  shown_ = -1;
}

void FindEdit::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit moveWanted(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
      return;
    case Qt::Key_Up: return showEarlier(1);
    case Qt::Key_Down: return showEarlier(-1);
    default: shown_ = -1; QLineEdit::keyPressEvent(event);
  }
}

void FindEdit::showEarlier(int step) {
  if (shown_ < 0) typed_ = text();
  const int wanted = std::clamp(shown_ + step, -1, static_cast<int>(earlier_.size()) - 1);
  if (wanted == shown_) return;
  shown_ = wanted;
  setText(wanted < 0 ? typed_ : earlier_[wanted]);
  emit textEdited(text());
}

}  // namespace qor
