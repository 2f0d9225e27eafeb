// Keys of edits and lists.
#include "windows/view/focus_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

#include "windows/alignment/alignment_line.h"
#include "windows/find/find_edit.h"

namespace qor {

bool focusKeeps(const QKeyEvent& event) {
  const QWidget* focus = QApplication::focusWidget();
  const bool inLine = qobject_cast<const AlignmentLine*>(focus) != nullptr;
  const bool inEdit = qobject_cast<const QLineEdit*>(focus) != nullptr;
  const bool isList = qobject_cast<const QListView*>(focus) != nullptr;
  const bool inList = isList && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool inFind = qobject_cast<const FindEdit*>(focus) != nullptr;
  const bool types = !event.text().isEmpty() && event.text().front().isPrint() &&
                     !event.modifiers().testFlag(Qt::ControlModifier);
  if (inFind && types) return true;
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: return inEdit;
    case Qt::Key_Escape: return inLine;
    case Qt::Key_F10: return inLine && event.modifiers() == Qt::ShiftModifier;
    case Qt::Key_Up:
    case Qt::Key_Down: return inEdit || inList || inLine;
    case Qt::Key_Home:
    case Qt::Key_End: return inEdit || inList;
    case Qt::Key_A:
    case Qt::Key_C:
    case Qt::Key_V:
    case Qt::Key_X: return (inEdit || isList) && event.modifiers() == Qt::ControlModifier;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: return inList;
    default: return false;
  }
}

}  // namespace qor
