// The interface for screen readers.
#include "windows/accessible/page_accessible.h"

#include "windows/accessible/spoken_page.h"
#include "windows/view/page_scroll.h"

namespace qor {
namespace {

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  auto* area = qobject_cast<PageScroll*>(object);
  return area == nullptr ? nullptr : new PageAccessible(area);
}

SpokenPage* pageIn(const QWidget* area) {
  return area == nullptr ? nullptr
                         : area->findChild<SpokenPage*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

void PageAccessible::install() {
  QAccessible::installFactory(interfaceOf);
}

SpokenPage& PageAccessible::page() const {
  return *pageIn(widget());
}

bool PageAccessible::isValid() const {
  return QAccessibleWidget::isValid() && pageIn(widget()) != nullptr;
}

QAccessible::State PageAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = true;
  state.multiLine = true;
  state.selectableText = true;
  return state;
}

void* PageAccessible::interface_cast(QAccessible::InterfaceType kind) {
  if (kind == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(kind);
}

int PageAccessible::characterCount() const {
  return page().length();
}

QString PageAccessible::text(int start, int end) const {
  return page().text(start, end);
}

QString PageAccessible::told(const std::optional<TextSpan>& piece, int* start, int* end) const {
  *start = *end = -1;
  if (!piece) return {};
  *start = static_cast<int>(piece->first);
  *end = static_cast<int>(piece->end());
  return page().text(*start, *end);
}

QString PageAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                     int* end) const {
  return told(page().pieceAt(offset, kind), start, end);
}

QString PageAccessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                         int* end) const {
  const auto at = page().pieceAt(offset, kind);
  const int before = (at ? static_cast<int>(at->first) : offset) - 1;
  return told(page().pieceAt(before, kind), start, end);
}

QString PageAccessible::textAfterOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                        int* end) const {
  const auto at = page().pieceAt(offset, kind);
  return told(at ? page().pieceAt(static_cast<int>(at->end()), kind) : at, start, end);
}

// Fonts are no matter of reading a report.
QString PageAccessible::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

QRect PageAccessible::characterRect(int offset) const {
  return page().placeOf(offset);
}

int PageAccessible::offsetAtPoint(const QPoint& point) const {
  return page().offsetAt(point);
}

void PageAccessible::scrollToSubstring(int start, int end) {
  page().show(start, end);
}

int PageAccessible::cursorPosition() const {
  return page().caret();
}

void PageAccessible::setCursorPosition(int offset) {
  page().select(offset, offset);
}

int PageAccessible::selectionCount() const {
  return static_cast<int>(page().selections().size());
}

void PageAccessible::selection(int number, int* start, int* end) const {
  *start = *end = -1;
  const std::vector<TextSpan> parts = page().selections();
  if (number < 0 || number >= static_cast<int>(parts.size())) return;
  const TextSpan& part = parts[static_cast<std::size_t>(number)];
  *start = static_cast<int>(part.first);
  *end = static_cast<int>(part.end());
}

// There is one selection: another one takes its place.
void PageAccessible::addSelection(int start, int end) {
  page().select(start, end);
}

void PageAccessible::removeSelection(int) {
  setCursorPosition(cursorPosition());
}

void PageAccessible::setSelection(int, int start, int end) {
  page().select(start, end);
}

}  // namespace qor
