// Extending by keys.
#include "windows/selection/selection_keys.h"

#include <QKeyEvent>
#include <optional>

#include "windows/selection/page_selection.h"
#include "windows/view/page_overlay.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

std::optional<SelectionMove> moveOf(int key) {
  switch (key) {
    case Qt::Key_Left: return SelectionMove::left;
    case Qt::Key_Right: return SelectionMove::right;
    case Qt::Key_Up: return SelectionMove::up;
    case Qt::Key_Down: return SelectionMove::down;
    case Qt::Key_Home: return SelectionMove::lineStart;
    case Qt::Key_End: return SelectionMove::lineEnd;
    default: return std::nullopt;
  }
}

// What is seen of the page at once, twips.
double heightOnView(const ViewDesk& desk) {
  const auto mapping = desk.page_control->overlay().mapping();
  if (!mapping) return 0;
  const double pixels = desk.ui.pScroll->viewport()->height();
  return mapping->toTwips({0, pixels}).y - mapping->toTwips({0, 0}).y;
}

}  // namespace

bool extendByKey(PageSelection& selection, const QKeyEvent& event, const ViewDesk& desk) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::ShiftModifier) return false;
  const bool up = event.key() == Qt::Key_PageUp;
  if (const auto move = moveOf(event.key())) {
    selection.change([&](auto& selected, auto& map) { selected.move(map, *move); });
  } else if (up || event.key() == Qt::Key_PageDown) {
    const double height = heightOnView(desk) * (up ? -1 : 1);
    selection.change([&](auto& selected, auto& map) { selected.moveDown(map, height); });
  } else {
    return false;
  }
  selection.showEnd();
  return true;
}

}  // namespace qor
